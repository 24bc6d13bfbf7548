#pragma once

#include "tools/cli/Dialect.h"

namespace LagomareCli {

// Which row of the table just read does not fit the rest of the project, in words; empty where all do. The library's
// errors do not tell. Both ask the database for the ids of the nodes.

/// A link that ends at a node that the project lacks.
[[nodiscard]] std::string findBrokenLink(Dialect dialect);

/// A row with the id of an element of another kind than the table is for.
[[nodiscard]] std::string findOtherKind(Dialect dialect, const std::string& table);

} // namespace LagomareCli
