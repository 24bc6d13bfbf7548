#pragma once

#include "tools/query/access/AccessRecord.h"

namespace LagomareQuery {

/// Walks over a table's rows in stored order: by page, then by slot. Has a page of its own, so that several may walk.
class AccessScan {
public:
  /// Both must outlive the scan.
  AccessScan(const AccessFile& file, const AccessTable& table) : file_(file), table_(table) {}

  /// Goes to the next row, at first to the first; false behind the last one. Throws QueryError.
  [[nodiscard]] bool next();

  /// Before the first row again.
  void restart() { nextPage_ = nextSlot_ = slotCount_ = 0; }

  /// The row gone to; valid until next().
  [[nodiscard]] const AccessRecord& record() const { return record_; }

private:
  [[nodiscard]] AccessBytes followPointer(AccessBytes pointer);

  const AccessFile& file_;
  const AccessTable& table_;
  AccessPage page_;
  AccessPage movedPage_;     // of a row that moved to another page
  std::size_t nextPage_ = 0; // in the table's list
  std::size_t nextSlot_ = 0;
  std::size_t slotCount_ = 0;
  AccessRecord record_;
};

} // namespace LagomareQuery
