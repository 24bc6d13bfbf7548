#pragma once

#include "model/Hemisphere.h"
#include "tools/project/Dialect.h"

#include <optional>
#include <string>

namespace LagomareTools {

struct UtmZone {
  unsigned number; ///< 1 to 60
  Hemisphere hemisphere;
};

/// A zone's number and letter: "23S".
[[nodiscard]] std::string textOf(const UtmZone& zone);

/// The words of `lagomare import`; paths as they were given.
struct ImportOptions {
  std::string program; ///< the name that the program was called by
  std::string project;
  std::optional<Dialect> dialect; ///< none: the database is asked
  std::optional<std::string> queryExecutable;
  std::optional<UtmZone> utmZone; ///< none: the usual one is assumed
  std::optional<std::string> json;
  std::optional<std::string> geojson;
  std::optional<std::string> csv;
  bool isQuiet = false;
};

/// Nothing where the call only asked for help or for the version, which were printed. Throws UsageError.
[[nodiscard]] std::optional<ImportOptions> parseOptions(int argumentCount, char** arguments);

} // namespace LagomareTools
