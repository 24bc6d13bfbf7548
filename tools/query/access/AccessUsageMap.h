#pragma once

#include "tools/query/access/AccessRow.h"
#include <vector>

namespace LagomareQuery {

/// The pages that a usage map marks, ascending; `map` is the row that holds the map. Throws QueryError where it marks a
/// page that the file does not have.
[[nodiscard]] std::vector<std::uint32_t> pagesOf(const AccessFile& file, AccessRowId map);

} // namespace LagomareQuery
