#pragma once

#include "tools/query/access/AccessRow.h"
#include <vector>

namespace LagomareQuery {

/// The bytes of a memo or an OLE object, gathered from wherever the cell says they stand. Throws QueryError.
[[nodiscard]] std::vector<std::uint8_t> readLongValue(const AccessFile& file, AccessBytes cell);

} // namespace LagomareQuery
