#pragma once

#include "tools/query/access/AccessRow.h"
#include <cstdint>
#include <vector>

namespace LagomareQuery {

/// Returns the bytes of a memo or an OLE object, which the cell holds or points to. Throws QueryError.
[[nodiscard]] std::vector<std::uint8_t> readLongValue(const AccessFile& file, AccessBytes cell);

} // namespace LagomareQuery
