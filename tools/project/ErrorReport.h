#pragma once

#include "tools/project/Project.h"

#include <exception>
#include <string>

namespace LagomareTools {

/// Explains an error that ended an import: the project, the table, row and column as far as they are known, what is
/// wrong, how to mend it, and the query that was asked last.
[[nodiscard]] std::string reportOf(const std::exception& error, const Project& project);

} // namespace LagomareTools
