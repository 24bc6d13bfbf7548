#pragma once

#include "tools/project/Dialect.h"

namespace LagomareTools {

// Which row of the table just read does not fit the rest of the project, in words; empty where all do. The library's
// errors do not tell. Both ask the database for the ids of the nodes.

/// A link that ends at a node that the project lacks.
[[nodiscard]] std::string findBrokenLink(Dialect dialect);

/// A row with a reservoir's id in a table of demands, the one kind of element that has other settings than the table's
/// and is in the scenario by then.
[[nodiscard]] std::string findReservoir(Dialect dialect);

} // namespace LagomareTools
