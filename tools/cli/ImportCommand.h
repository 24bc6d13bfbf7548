#pragma once

#include "tools/cli/Options.h"

namespace LagomareTools {

/// `lagomare import`: imports one project, writes the outputs, tells what was found. Returns the exit code. Throws
/// Failure and UsageError, the outputs being as they were.
[[nodiscard]] int importProject(const ImportOptions& options, const std::string& calledAs);

} // namespace LagomareTools
