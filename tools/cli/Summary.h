#pragma once

#include "tools/export/ExportInput.h"

#include <string>

namespace LagomareTools {

/// Returns what was imported, for people: several lines.
[[nodiscard]] std::string summaryOf(const ExportInput& input);

} // namespace LagomareTools
