#pragma once

#include "tools/project/Dialect.h"
#include "tools/project/UtmZone.h"

#include <optional>
#include <string>

namespace LagomareTools {

/// What a call says about the project to read. Paths as the user wrote them.
struct ProjectOptions {
  std::string project;
  std::optional<Dialect> dialect;             ///< none: ask the database
  std::optional<std::string> queryExecutable; ///< none: the bundled one
  std::optional<UtmZone> utmZone;             ///< none: usualZone is assumed
};

} // namespace LagomareTools
