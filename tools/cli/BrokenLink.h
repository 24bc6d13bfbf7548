#pragma once

#include "tools/cli/Dialect.h"

namespace LagomareCli {

/// Which link of the table just read ends at a node that the project lacks, in words; empty where none does. Asks the
/// database for the ids of the nodes.
[[nodiscard]] std::string findBrokenLink(Dialect dialect);

} // namespace LagomareCli
