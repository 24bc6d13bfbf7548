#pragma once

#include "tools/project/Imported.h"
#include "tools/system/FileWriter.h"

namespace LagomareTools {

/// Writes the whole scenario as one JSON object (docs/scenario.schema.json), value by value; without a scenario only
/// how the import ended. Does not flush. Throws Failure.
void writeJson(FileWriter& out, const Imported& imported);

} // namespace LagomareTools
