#pragma once

#include "tools/query/access/AccessRecord.h"

namespace LagomareQuery {

/// Walks over a table's rows in stored order: by page, then by slot. Has a page of its own, so that several may walk.
class AccessScan {
public:
  /// `pages` are those of the table, as readDataPages() returns them. All three must outlive the scan.
  AccessScan(const AccessFile& file, const AccessTable& table, const std::vector<std::uint32_t>& pages)
      : file_(file), table_(table), pages_(pages) {}

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
  const std::vector<std::uint32_t>& pages_;
  AccessPage page_;
  AccessPage movedPage_;     // of a row that moved to another page
  std::size_t nextPage_ = 0; // in the list
  std::size_t nextSlot_ = 0;
  std::size_t slotCount_ = 0;
  AccessRecord record_;
};

} // namespace LagomareQuery
