#pragma once

#include "tools/query/access/AccessTable.h"

namespace LagomareQuery {

/// A row taken apart into its cells. Points into the row's page.
class AccessRecord {
public:
  AccessRecord() = default;

  /// Throws QueryError where the row's parts do not fit into it or to the table.
  AccessRecord(AccessBytes row, const AccessTable& table, const AccessFormat& format);

  /// For a truth value: whether it is false; it cannot be NULL.
  [[nodiscard]] bool isNull(const AccessColumn& column) const {
    // A row has no bits for columns that were added after it.
    return column.number >= columnCount_ || (row_.u8(dataEnd_ + column.number / 8) >> (column.number % 8) & 1) == 0;
  }

  /// The bytes of a cell that is not NULL. Throws QueryError where they are not within the row.
  [[nodiscard]] AccessBytes cell(const AccessColumn& column) const;

private:
  /// Returns where the table of the variable cells' offsets begins.
  [[nodiscard]] std::size_t findVariableCells();
  [[nodiscard]] std::size_t variableOffset(std::size_t index) const;

  AccessBytes row_;
  const AccessFormat* format_ = nullptr;
  std::size_t columnCount_ = 0;
  std::size_t dataEnd_ = 0; // offset of the null mask, in which a set bit means not NULL
  std::size_t variableCount_ = 0;
  std::size_t offsetsEnd_ = 0; // the offsets of the variable cells stand before it, the first one last
  std::size_t jumpCount_ = 0;  // Jet3: entries of the jump table, which adds 256s to offsets of one byte
  std::size_t jumpsEnd_ = 0;   // offset behind it; the first entry stands last
};

} // namespace LagomareQuery
