#pragma once

#include "tools/query/AccessRecord.h"

namespace LagomareQuery {

/// Walks over a table's rows in stored order: by page, then by slot. Has a page of its own, so that several may walk.
class AccessScan {
public:
  /// Both must outlive the scan.
  AccessScan(const AccessFile& file, const AccessTable& table) : m_file(file), m_table(table) {}

  /// Goes to the next row, at first to the first; false behind the last one. Throws QueryError.
  [[nodiscard]] bool next();

  /// Before the first row again.
  void restart() { m_nextPage = m_nextSlot = m_slotCount = 0; }

  /// The row gone to; valid until next().
  [[nodiscard]] const AccessRecord& record() const { return m_record; }

private:
  [[nodiscard]] AccessBytes followPointer(AccessBytes pointer);

  const AccessFile& m_file;
  const AccessTable& m_table;
  AccessPage m_page;
  AccessPage m_movedPage;     // of a row that moved to another page
  std::size_t m_nextPage = 0; // in the table's list
  std::size_t m_nextSlot = 0;
  std::size_t m_slotCount = 0;
  AccessRecord m_record;
};

} // namespace LagomareQuery
