#pragma once

#include "tools/cli/Options.h"

namespace LagomareCli {

/// `lagomare import`: imports one project, writes the outputs, tells what was found. Returns the exit code. Throws
/// Failure and UsageError, the outputs being as they were.
[[nodiscard]] int importProject(const ImportOptions& options);

/// Prints "lagomare: error: " and the message on standard error, on one line whatever the message holds.
void printError(const std::string& message);

} // namespace LagomareCli
