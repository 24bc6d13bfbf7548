#pragma once

#include "tools/query/access/AccessRecord.h"

#include <cstdint>
#include <vector>

namespace LagomareQuery {

/// Reads the rows of a table in stored order: by page, then by slot. There can be several scans of one table.
class AccessScan {
public:
  /// `pages` must be those that readDataPages() returns. All three must outlive the scan.
  AccessScan(const AccessFile& file, const AccessTable& table, const std::vector<std::uint32_t>& pages)
      : file_(file), table_(table), pages_(pages) {}

  /// Goes to the next row, the first time to the first one; returns false after the last one. Throws QueryError.
  [[nodiscard]] bool next();

  /// Goes back to the beginning.
  void restart() { nextPage_ = nextSlot_ = slotCount_ = 0; }

  /// The current row. Valid until next() is called.
  [[nodiscard]] const AccessRecord& record() const { return record_; }

private:
  [[nodiscard]] AccessBytes followPointer(AccessBytes pointer);

  const AccessFile& file_;
  const AccessTable& table_;
  const std::vector<std::uint32_t>& pages_;
  AccessPage page_;
  AccessPage movedPage_;     // holds the current row if it was moved
  std::size_t nextPage_ = 0; // index in pages_
  std::size_t nextSlot_ = 0;
  std::size_t slotCount_ = 0;
  AccessRecord record_;
};

} // namespace LagomareQuery
