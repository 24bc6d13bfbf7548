#include "tools/query/access/AccessLongValue.h"

#include <set>
#include <string>

namespace LagomareQuery {

namespace {

constexpr std::size_t headerSize = 12; // length and flags, pointer, four bytes whose meaning is unknown
constexpr std::uint32_t inCellFlag = 0x80000000;
constexpr std::uint32_t inOneRowFlag = 0x40000000;
constexpr std::uint32_t lengthMask = 0x3FFFFFFF;

constexpr const char* lengthDiffers = "a long text whose parts are not of its length";

void append(std::vector<std::uint8_t>& bytes, AccessBytes part) {
  bytes.insert(bytes.end(), part.data(), part.data() + part.size());
}

AccessBytes readLongValueRow(const AccessFile& file, AccessRowId row, AccessPage& page) {
  constexpr std::uint32_t ownerMark = 'L' | 'V' << 8 | 'A' << 16 | 'L' << 24; // instead of a table's page
  const AccessBytes bytes = readRow(file, row, page);
  if (page.bytes().u32(4) != ownerMark)
    throwDamaged("a long text that stands on a page of a table, page " + std::to_string(row.page));
  return bytes;
}

/// Each row begins with a pointer to the next one.
void appendChain(const AccessFile& file, std::uint32_t pointer, std::size_t length, std::vector<std::uint8_t>& bytes) {
  AccessPage page;
  std::set<std::uint32_t> visited;
  while (bytes.size() < length) {
    if (!visited.insert(pointer).second)
      throwDamaged("a long text whose parts lead back to each other");
    const AccessBytes row = readLongValueRow(file, AccessRowId::stored(pointer), page);
    const AccessBytes part = row.from(4);
    if (part.size() == 0 || part.size() > length - bytes.size())
      throwDamaged(lengthDiffers);
    append(bytes, part);
    pointer = row.u32(0);
  }
  if (pointer != 0 && length != 0)
    throwDamaged(lengthDiffers);
}

} // namespace

std::vector<std::uint8_t> readLongValue(const AccessFile& file, AccessBytes cell) {
  const std::uint32_t lengthAndFlags = cell.u32(0);
  const std::uint32_t length = lengthAndFlags & lengthMask;
  const std::uint32_t pointer = cell.u32(4);
  std::vector<std::uint8_t> bytes;
  if ((lengthAndFlags & inCellFlag) != 0) {
    append(bytes, cell.from(headerSize).part(0, length));
  } else if ((lengthAndFlags & inOneRowFlag) != 0) {
    AccessPage page;
    append(bytes, readLongValueRow(file, AccessRowId::stored(pointer), page).part(0, length));
  } else {
    appendChain(file, pointer, length, bytes);
  }
  return bytes;
}

} // namespace LagomareQuery
