#include "tools/query/AccessScan.h"

#include "tools/query/AccessRow.h"

namespace LagomareQuery {

bool AccessScan::next() {
  const AccessFormat& format = m_file.format();
  while (true) {
    if (m_nextSlot == m_slotCount) {
      if (m_nextPage == m_table.dataPages.size())
        return false;
      m_file.read(m_table.dataPages[m_nextPage++], m_page);
      m_nextSlot = 0;
      m_slotCount = rowCount(m_page, format);
      continue;
    }
    const std::size_t slot = m_nextSlot++;
    const AccessSlot kind = slotOf(m_page, format, slot);
    if (kind == AccessSlot::deleted)
      continue;
    const AccessBytes bytes = rowBytes(m_page, format, slot);
    m_record = AccessRecord(kind == AccessSlot::pointer ? followPointer(bytes) : bytes, m_table, format);
    return true;
  }
}

AccessBytes AccessScan::followPointer(AccessBytes pointer) {
  const AccessRowId row = AccessRowId::stored(pointer.u32(0));
  const AccessBytes bytes = readRow(m_file, row, m_movedPage);
  if (m_movedPage.bytes().u32(4) != m_page.bytes().u32(4))
    throwDamaged("a row of table " + m_table.name + " that moved to a page of another one");
  return bytes;
}

} // namespace LagomareQuery
