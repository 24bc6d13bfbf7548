#pragma once

#include "tools/project/Imported.h"
#include "tools/project/Project.h"

#include <functional>

namespace LagomareTools {

/// Imports a project through the library's entry. `progress` is given the steps done and the steps in all. Throws
/// Failure, which says what is wrong and where, and Interrupted.
[[nodiscard]] Imported importScenario(const Project& project, const std::function<void(long, long)>& progress);

} // namespace LagomareTools
