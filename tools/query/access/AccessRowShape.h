#pragma once

#include "tools/query/access/AccessColumn.h"

#include <vector>

namespace LagomareQuery {

/// What a row must look like, depending on how many columns the table had when the row was written.
struct AccessRowShape {
  /// Bytes from the beginning of the row to the end of its fixed columns. It varies if columns were deleted, and if the
  /// last ones are truth values, for which some programs leave a byte.
  std::size_t leastFixedEnd;
  std::size_t mostFixedEnd;
  std::size_t mostVariableCells;
};

/// Returns the shapes of rows with 0, 1, … columns, deleted ones included. No row has 0 columns. `columns` must be
/// sorted by number.
[[nodiscard]] std::vector<AccessRowShape> rowShapes(const std::vector<AccessColumn>& columns,
                                                    std::size_t endOfColumnNumbers, std::size_t variableColumnCount,
                                                    const AccessFormat& format);

} // namespace LagomareQuery
