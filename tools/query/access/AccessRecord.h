#pragma once

#include "tools/query/access/AccessTable.h"

namespace LagomareQuery {

/// Finds the cells of a row. Points into the row's page.
class AccessRecord {
public:
  AccessRecord() = default;

  /// Throws QueryError if the row cannot be one of the table.
  AccessRecord(AccessBytes row, const AccessTable& table, const AccessFormat& format);

  /// For a truth value, which cannot be NULL: whether it is false.
  [[nodiscard]] bool isNull(const AccessColumn& column) const {
    // A row has no bits for columns that were added to the table later.
    return column.number >= columnCount_ || (row_.u8(dataEnd_ + column.number / 8) >> (column.number % 8) & 1) == 0;
  }

  /// Returns the bytes of a cell that is not NULL. Throws QueryError if they are not within the row.
  [[nodiscard]] AccessBytes cell(const AccessColumn& column) const;

private:
  /// Returns where the table of the variable cells' offsets begins.
  [[nodiscard]] std::size_t findVariableCells();
  [[nodiscard]] std::size_t variableOffset(std::size_t index) const;

  AccessBytes row_;
  const AccessFormat* format_ = nullptr;
  std::size_t columnCount_ = 0;
  std::size_t dataEnd_ = 0; // offset of the null mask; a set bit means not NULL
  std::size_t variableCount_ = 0;
  std::size_t offsetsEnd_ = 0; // end of the table of variable cells' offsets, which is stored backwards
  std::size_t jumpCount_ =
      0; // Access 97: entries of the jump table, which says where 256 is added to offsets of one byte
  std::size_t jumpsEnd_ = 0; // end of the jump table, which is stored backwards
};

} // namespace LagomareQuery
