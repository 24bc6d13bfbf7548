#pragma once

#include "tools/export/ExportInput.h"

#include <filesystem>

namespace LagomareTools {

/// Writes a scenario as an OGC GeoPackage 1.3 in SIRGAS 2000: the layers nodes and links, and the other tables as
/// attributes. The file must be empty or missing. Throws Failure.
void writeGeoPackage(const std::filesystem::path& path, const ExportInput& input);

} // namespace LagomareTools
