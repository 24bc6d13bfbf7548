#pragma once

#include "tools/cli/Options.h"

namespace LagomareTools {

/// `lagomare import`: imports one project, writes the outputs, tells what was found. Returns the exit code. Throws
/// Failure, UsageError and Interrupted; the outputs are then as they were before.
[[nodiscard]] int importProject(const ImportOptions& options);

} // namespace LagomareTools
