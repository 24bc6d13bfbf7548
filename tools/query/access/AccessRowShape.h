#pragma once

#include "tools/query/access/AccessColumn.h"

namespace LagomareQuery {

/// What a row must look like that was written when its table had so many columns.
struct AccessRowShape {
  /// Bytes from the row's beginning to the end of its fixed columns. There may be more than the least of them where
  /// columns were deleted, and for truth values at the end, to which some programs give a byte.
  std::size_t leastFixedEnd;
  std::size_t mostFixedEnd;
  std::size_t mostVariableCells;
};

/// The shapes by number of columns, from 0, which no row has; deleted columns are counted. `columns` in ascending order
/// of their numbers.
[[nodiscard]] std::vector<AccessRowShape> rowShapes(const std::vector<AccessColumn>& columns,
                                                    std::size_t endOfColumnNumbers, std::size_t variableColumnCount,
                                                    const AccessFormat& format);

} // namespace LagomareQuery
