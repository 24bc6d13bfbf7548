#pragma once

#include "tools/query/access/AccessRow.h"
#include <cstdint>
#include <vector>

namespace LagomareQuery {

/// Returns the pages that a usage map marks, in ascending order. `map` is the row that holds the map. Throws QueryError
/// if the file has not all of these pages.
[[nodiscard]] std::vector<std::uint32_t> pagesOf(const AccessFile& file, AccessRowId map);

} // namespace LagomareQuery
