#pragma once

#include "tools/cli/Options.h"
#include "tools/project/Imported.h"

namespace LagomareTools {

/// What was imported, for people: several lines; `zone` is none where the usual one was assumed.
[[nodiscard]] std::string summaryOf(const Imported& imported, const std::optional<UtmZone>& zone);

} // namespace LagomareTools
