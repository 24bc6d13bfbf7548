#pragma once

#include "tools/export/ExportInput.h"

#include <filesystem>

namespace LagomareTools {

/// Writes a scenario as an Excel workbook: a sheet for each of the small tables, then a wide sheet for each kind of
/// series and hydrological state. The scenario must have come in. Throws Failure.
void writeWorkbook(const std::filesystem::path& file, const ExportInput& input);

} // namespace LagomareTools
