#include "tools/query/access/AccessRowShape.h"

#include <algorithm>
#include <limits>

namespace LagomareQuery {

namespace {

void add(AccessRowShape& shape, const AccessColumn& column, const AccessFormat& format) {
  if (!column.fixed) {
    shape.mostVariableCells = std::max(shape.mostVariableCells, column.variableIndex + std::size_t{1});
    return;
  }
  const std::size_t begin = format.countSize + column.fixedOffset;
  shape.leastFixedEnd = std::max(shape.leastFixedEnd, begin + fixedSize(column));
  const std::size_t roomForTruth = column.type == AccessType::truth ? 1 : 0;
  shape.mostFixedEnd = std::max({shape.mostFixedEnd, shape.leastFixedEnd, begin + roomForTruth});
}

} // namespace

std::vector<AccessRowShape> rowShapes(const std::vector<AccessColumn>& columns, std::size_t endOfColumnNumbers,
                                      std::size_t variableColumnCount, const AccessFormat& format) {
  std::vector<AccessRowShape> shapes = {{format.countSize, format.countSize, 0}};
  auto column = columns.begin();
  for (std::size_t number = 0; number < endOfColumnNumbers; ++number) {
    AccessRowShape shape = shapes.back();
    if (column != columns.end() && column->number == number) {
      add(shape, *column++, format);
    } else { // a deleted column; its type is unknown
      shape.mostFixedEnd = std::numeric_limits<std::size_t>::max();
      shape.mostVariableCells = variableColumnCount;
    }
    shapes.push_back(shape);
  }
  return shapes;
}

} // namespace LagomareQuery
