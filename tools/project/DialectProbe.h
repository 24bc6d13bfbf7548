#pragma once

#include "tools/project/Dialect.h"
#include "tools/project/ProjectSource.h"

#include <string>

namespace LagomareTools {

/// Finds the dialect whose table of general settings the database holds, empty or not. Throws Failure if it holds both
/// tables or neither, or if this cannot be found out.
[[nodiscard]] Dialect findDialect(ProjectSource& source, bool isBundled, const std::string& projectName);

} // namespace LagomareTools
