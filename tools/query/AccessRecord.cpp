#include "tools/query/AccessRecord.h"

namespace LagomareQuery {

namespace {

std::size_t count(AccessBytes bytes, std::size_t offset, const AccessFormat& format) {
  return format.countSize == 1 ? bytes.u8(offset) : bytes.u16(offset);
}

/// `size` less `parts`; the file is damaged where the parts are more.
std::size_t before(std::size_t size, std::size_t parts) {
  if (parts > size)
    throwDamaged("a row that is shorter than its parts");
  return size - parts;
}

} // namespace

AccessRecord::AccessRecord(AccessBytes row, const AccessTable& table, const AccessFormat& format)
    : m_row(row), m_format(&format), m_columnCount(count(row, 0, format)),
      m_dataEnd(before(row.size(), (m_columnCount + 7) / 8)) {
  if (!table.hasVariableColumns)
    return;
  const std::size_t countOffset = before(m_dataEnd, format.countSize);
  m_variableCount = count(row, countOffset, format);
  m_offsetsEnd = countOffset;
  if (!format.utf16) { // Jet3: the jump table stands between the offsets and their count
    m_jumpCount = (row.size() - 1) / 256;
    m_jumpsEnd = countOffset;
    m_offsetsEnd = before(countOffset, m_jumpCount);
  }
  const std::size_t offsets = before(m_offsetsEnd, (m_variableCount + 1) * format.countSize);
  // The last jump may be a dummy, for the offsets themselves.
  if (m_jumpCount > 0 && offsets / 256 < m_jumpCount)
    --m_jumpCount;
}

std::size_t AccessRecord::variableOffset(std::size_t index) const {
  const std::size_t offset = count(m_row, m_offsetsEnd - (index + 1) * m_format->countSize, *m_format);
  std::size_t jumps = 0;
  while (jumps < m_jumpCount && m_row.u8(m_jumpsEnd - 1 - jumps) <= index)
    ++jumps;
  return offset + 256 * jumps;
}

AccessBytes AccessRecord::cell(const AccessColumn& column) const {
  if (column.fixed) {
    const std::size_t offset = m_format->countSize + column.fixedOffset;
    const std::size_t size = fixedSize(column);
    return m_row.part(offset, size <= before(m_dataEnd, offset) ? size : m_row.size());
  }
  if (column.variableIndex >= m_variableCount)
    throwDamaged("a row without a cell of column " + column.name);
  const std::size_t begin = variableOffset(column.variableIndex);
  const std::size_t end = variableOffset(column.variableIndex + std::size_t{1});
  if (begin > end || end > m_dataEnd)
    throwDamaged("a cell that ends outside its row");
  return m_row.part(begin, end - begin);
}

} // namespace LagomareQuery
