#include "tools/query/access/AccessColumn.h"

#include <algorithm>

namespace LagomareQuery {

namespace {

constexpr std::size_t mostColumns = 255;

AccessColumn readColumn(AccessBytes entry, const AccessFormat& format) {
  constexpr std::uint8_t fixedFlag = 0x01;
  constexpr std::uint8_t calculatedFlags = 0xC0;
  AccessColumn column{};
  column.type = static_cast<AccessType>(entry.u8(0));
  column.number = format.countSize == 1 ? entry.u8(format.columnNumber) : entry.u16(format.columnNumber);
  column.variableIndex = entry.u16(format.variableIndex);
  column.scale = entry.u8(format.scale);
  column.fixed = (entry.u8(format.columnFlags) & fixedFlag) != 0;
  column.calculated = format.utf16 && (entry.u8(format.columnFlags + 1) & calculatedFlags) != 0;
  column.fixedOffset = entry.u16(format.fixedOffset);
  column.size = column.type == AccessType::truth ? std::uint16_t{0} : entry.u16(format.columnSize);
  return column;
}

/// Marks places as taken; each is for one column. Returns false if one of them was taken before.
bool take(std::vector<bool>& taken, std::size_t begin, std::size_t size) {
  taken.resize(std::max(taken.size(), begin + size));
  for (std::size_t place = begin; place < begin + size; ++place) {
    if (taken[place])
      return false;
    taken[place] = true;
  }
  return true;
}

/// If two columns had the same number or the same bytes of a row, one would be read as the other.
void requireSeparate(const std::vector<AccessColumn>& columns, std::size_t endOfNumbers, std::size_t endOfCells,
                     const std::string& table) {
  std::vector<bool> numbers;
  std::vector<bool> fixedBytes;
  std::vector<bool> variableCells;
  for (const AccessColumn& column : columns) {
    const bool hasNumber = column.number < endOfNumbers && take(numbers, column.number, 1);
    const bool hasPlace = column.fixed
                              ? take(fixedBytes, column.fixedOffset, fixedSize(column))
                              : column.variableIndex < endOfCells && take(variableCells, column.variableIndex, 1);
    if (!hasNumber || !hasPlace)
      throwDamaged("column " + column.name + " of table " + table + " has no place of its own");
  }
}

} // namespace

std::size_t fixedSize(const AccessColumn& column) {
  switch (column.type) {
  case AccessType::truth:
    return 0;
  case AccessType::byte:
    return 1;
  case AccessType::integer16:
    return 2;
  case AccessType::integer32:
  case AccessType::single:
    return 4;
  case AccessType::currency:
  case AccessType::real:
  case AccessType::dateTime:
  case AccessType::integer64:
    return 8;
  case AccessType::guid:
    return 16;
  case AccessType::decimal:
    return 17;
  default:
    return column.size;
  }
}

std::vector<AccessColumn> readColumns(const AccessFile& file, const std::string& table, AccessBytes definition) {
  const AccessFormat& format = file.format();
  const std::size_t count = definition.u16(format.columnCount);
  if (count == 0 || count > mostColumns)
    throwDamaged("table " + table + " has " + std::to_string(count) + " columns");
  std::size_t position = format.indexEntries + definition.u32(format.indexCount) * format.indexEntrySize;
  std::vector<AccessColumn> columns;
  for (std::size_t i = 0; i < count; ++i, position += format.columnEntrySize)
    columns.push_back(readColumn(definition.part(position, format.columnEntrySize), format));
  for (AccessColumn& column : columns) {
    const std::size_t length = format.countSize == 1 ? definition.u8(position) : definition.u16(position);
    file.appendText(definition.part(position + format.countSize, length), column.name);
    position += format.countSize + length;
  }
  requireSeparate(columns, definition.u16(format.endOfColumnNumbers), definition.u16(format.variableColumnCount),
                  table);
  std::sort(columns.begin(), columns.end(),
            [](const AccessColumn& left, const AccessColumn& right) { return left.number < right.number; });
  return columns;
}

} // namespace LagomareQuery
