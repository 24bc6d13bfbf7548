#pragma once

#include "access/QuerySource.h"
#include "tools/check/result/CheckResult.h"
#include "tools/project/Dialect.h"

#include <functional>
#include <string>

namespace LagomareTools {

/// Is told how many tables are read and how many there are.
using CheckProgress = std::function<void(std::size_t, std::size_t)>;

/// Looks for every fault of a project in one pass: reads each table of the dialect once, row by row. What it remembers
/// grows with the elements and with the faults, not with the rows. A query that is refused (QueryRefused) is a fault;
/// any other exception of the source passes through. `lockFile` is the name of a lock file beside the project, or
/// empty. Positions are judged by the UTM zone of TeluUtmDegreeConversion.
[[nodiscard]] CheckResult checkProject(Lagomare::QuerySource& source, Dialect dialect, const std::string& lockFile = {},
                                       const CheckProgress& progress = {});

} // namespace LagomareTools
