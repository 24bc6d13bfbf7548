#pragma once

#include "tools/cli/Imported.h"
#include "tools/cli/Options.h"

namespace LagomareCli {

/// What was imported, for people: several lines; `zone` is none where the usual one was assumed.
[[nodiscard]] std::string summaryOf(const Imported& imported, const std::optional<UtmZone>& zone);

} // namespace LagomareCli
