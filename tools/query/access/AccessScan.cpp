#include "tools/query/access/AccessScan.h"

#include "tools/query/access/AccessRow.h"

namespace LagomareQuery {

bool AccessScan::next() {
  const AccessFormat& format = file_.format();
  while (true) {
    if (nextSlot_ == slotCount_) {
      if (nextPage_ == pages_.size())
        return false;
      file_.read(pages_[nextPage_++], page_);
      nextSlot_ = 0;
      slotCount_ = slotCount(page_, format);
      continue;
    }
    const std::size_t slot = nextSlot_++;
    const AccessSlot kind = slotOf(page_, format, slot);
    if (kind == AccessSlot::deleted)
      continue;
    const AccessBytes bytes = rowBytes(page_, format, slot);
    record_ = AccessRecord(kind == AccessSlot::pointer ? followPointer(bytes) : bytes, table_, format);
    return true;
  }
}

AccessBytes AccessScan::followPointer(AccessBytes pointer) {
  const AccessRowId row = AccessRowId::stored(pointer.u32(0));
  const AccessBytes bytes = readRow(file_, row, movedPage_);
  const bool ofThisTable = movedPage_.bytes().u32(4) == page_.bytes().u32(4);
  if (!ofThisTable || slotOf(movedPage_, file_.format(), row.slot) != AccessSlot::deleted)
    throwDamaged("a row of table " + table_.name + " that moved to where no row of it is");
  return bytes;
}

} // namespace LagomareQuery
