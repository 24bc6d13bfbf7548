#include "tools/query/access/AccessRow.h"

#include <string>

namespace LagomareQuery {

namespace {

constexpr std::uint16_t deletedFlag = 0x8000;
constexpr std::uint16_t movedFlag = 0x4000;
constexpr std::uint16_t offsetMask = 0x1FFF;

/// Returns the offset of a row in its page, with flags.
std::uint16_t slotEntry(const AccessPage& page, const AccessFormat& format, std::size_t slot) {
  return page.bytes().u16(format.pageRowCount + 2 * (slot + 1));
}

} // namespace

std::size_t slotCount(const AccessPage& page, const AccessFormat& format) {
  return page.bytes().u16(format.pageRowCount);
}

AccessSlot slotOf(const AccessPage& page, const AccessFormat& format, std::size_t slot) {
  const std::uint16_t entry = slotEntry(page, format, slot);
  if ((entry & deletedFlag) != 0)
    return AccessSlot::deleted;
  return (entry & movedFlag) != 0 ? AccessSlot::pointer : AccessSlot::row;
}

AccessBytes rowBytes(const AccessPage& page, const AccessFormat& format, std::size_t slot) {
  const AccessBytes bytes = page.bytes();
  const std::size_t begin = slotEntry(page, format, slot) & offsetMask;
  // Rows are stored from the end of the page to its beginning.
  const std::size_t end = slot == 0 ? bytes.size() : slotEntry(page, format, slot - 1) & offsetMask;
  const std::size_t endOfSlots = format.pageRowCount + 2 * (slotCount(page, format) + 1);
  if (begin > end || begin < endOfSlots)
    throwDamaged("a row that begins outside its place");
  return bytes.part(begin, end - begin);
}

AccessBytes readRow(const AccessFile& file, AccessRowId row, AccessPage& page) {
  file.read(row.page, page);
  if (!page.is(AccessPage::Kind::data) || row.slot >= slotCount(page, file.format()))
    throwDamaged("a pointer to a row that is not there, page " + std::to_string(row.page));
  return rowBytes(page, file.format(), row.slot);
}

} // namespace LagomareQuery
