#pragma once

#include "tools/export/ExportInput.h"
#include "tools/system/FileWriter.h"

namespace LagomareTools {

/// Writes one HTML page that needs no other file and no network: what the project is, the faults found, the network as
/// a map, and tables of the elements with their figures, curves and series. The import must have given a scenario. Does
/// not flush. Throws Failure.
void writeReport(FileWriter& out, const ExportInput& input);

} // namespace LagomareTools
