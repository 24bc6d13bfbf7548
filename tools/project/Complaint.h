#pragma once

#include "tools/system/ChildProcess.h"

namespace LagomareTools {

// What is told about a query executable that failed.

/// The last line that says something, without the "lagomare-query: error: " of the bundled executable. Empty if there
/// is none.
[[nodiscard]] std::string lastLineOf(const std::string& complaint);

/// "exit code 1", or that it was killed.
[[nodiscard]] std::string textOf(const ChildEnd& end);

} // namespace LagomareTools
