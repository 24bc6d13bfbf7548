#pragma once

#include "tools/query/AccessTable.h"

namespace LagomareQuery {

/// A row taken apart into its cells. Points into the row's page.
class AccessRecord {
public:
  AccessRecord() = default;

  /// Throws QueryError where the row's parts do not fit into it.
  AccessRecord(AccessBytes row, const AccessTable& table, const AccessFormat& format);

  /// For a truth value: whether it is false; it cannot be NULL.
  [[nodiscard]] bool isNull(const AccessColumn& column) const {
    // A row has no bits for columns that were added after it.
    return column.number >= m_columnCount || (m_row.u8(m_dataEnd + column.number / 8) >> (column.number % 8) & 1) == 0;
  }

  /// The bytes of a cell that is not NULL. Throws QueryError where they are not within the row.
  [[nodiscard]] AccessBytes cell(const AccessColumn& column) const;

private:
  [[nodiscard]] std::size_t variableOffset(std::size_t index) const;

  AccessBytes m_row;
  const AccessFormat* m_format = nullptr;
  std::size_t m_columnCount = 0;
  std::size_t m_dataEnd = 0; // offset of the null mask, in which a set bit means not NULL
  std::size_t m_variableCount = 0;
  std::size_t m_offsetsEnd = 0; // the offsets of the variable cells stand before it, the first one last
  std::size_t m_jumpCount = 0;  // Jet3: entries of the jump table, which adds 256s to offsets of one byte
  std::size_t m_jumpsEnd = 0;   // offset behind it; the first entry stands last
};

} // namespace LagomareQuery
