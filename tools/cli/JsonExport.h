#pragma once

#include "tools/cli/FileWriter.h"
#include "tools/cli/Imported.h"

namespace LagomareCli {

/// Writes the whole scenario as one JSON object (docs/scenario.schema.json), value by value; without a scenario only
/// how the import ended. Does not flush. Throws Failure.
void writeJson(FileWriter& out, const Imported& imported);

} // namespace LagomareCli
