#include "tools/query/AccessTable.h"

#include "tools/query/AccessUsageMap.h"
#include <algorithm>

namespace LagomareQuery {

namespace {

constexpr std::size_t pageHeader = 8;
constexpr std::size_t nextPageOffset = 4; // of table definitions
constexpr std::size_t ownerOffset = 4;    // of data pages: the table's definition page
constexpr std::size_t mostDefinitionPages = 256;
constexpr std::size_t mostColumns = 255;

/// The definition's bytes from all of its pages, as if they stood on one.
std::vector<std::uint8_t> definitionBytes(const AccessFile& file, std::uint32_t pageNumber) {
  std::vector<std::uint8_t> bytes;
  AccessPage page;
  for (std::size_t pages = 0; pages == 0 || pageNumber != 0; ++pages) {
    if (pages == mostDefinitionPages)
      throwDamaged("a table definition without end");
    file.read(pageNumber, page);
    if (!page.is(AccessPage::Kind::tableDefinition))
      throwDamaged("page " + std::to_string(pageNumber) + " is no table definition");
    const AccessBytes part = page.bytes().from(pages == 0 ? 0 : pageHeader);
    bytes.insert(bytes.end(), part.data(), part.data() + part.size());
    pageNumber = page.bytes().u32(nextPageOffset);
  }
  return bytes;
}

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

std::vector<AccessColumn> readColumns(const AccessFile& file, AccessBytes definition) {
  const AccessFormat& format = file.format();
  const std::size_t count = definition.u16(format.columnCount);
  if (count == 0 || count > mostColumns)
    throwDamaged("a table with " + std::to_string(count) + " columns");
  std::size_t position = format.indexEntries + definition.u32(format.indexCount) * format.indexEntrySize;
  std::vector<AccessColumn> columns;
  for (std::size_t i = 0; i < count; ++i, position += format.columnEntrySize)
    columns.push_back(readColumn(definition.part(position, format.columnEntrySize), format));
  for (AccessColumn& column : columns) {
    const std::size_t length = format.countSize == 1 ? definition.u8(position) : definition.u16(position);
    file.appendText(definition.part(position + format.countSize, length), column.name);
    position += format.countSize + length;
  }
  std::stable_sort(columns.begin(), columns.end(),
                   [](const AccessColumn& left, const AccessColumn& right) { return left.number < right.number; });
  return columns;
}

std::size_t liveRows(const AccessPage& page, const AccessFormat& format) {
  std::size_t live = 0;
  for (std::size_t slot = 0, count = rowCount(page, format); slot < count; ++slot)
    if (slotOf(page, format, slot) != AccessSlot::deleted)
      ++live;
  return live;
}

/// The usage map marks a few pages that are no longer the table's; whether those that are left are all of them, the
/// number of rows tells.
std::vector<std::uint32_t> dataPages(const AccessFile& file, AccessTable& table, std::uint32_t definitionPage,
                                     AccessRowId usageMap) {
  std::vector<std::uint32_t> own;
  std::size_t rows = 0;
  const std::vector<std::uint32_t> marked = pagesOf(file, usageMap);
  AccessPage page;
  for (const std::uint32_t pageNumber : marked) {
    file.read(pageNumber, page);
    if (!page.is(AccessPage::Kind::data) || page.bytes().u32(ownerOffset) != definitionPage)
      continue;
    own.push_back(pageNumber);
    rows += liveRows(page, file.format());
  }
  const bool unknown = table.rowCount == 0 && own.size() == marked.size();
  if (rows != table.rowCount && !unknown)
    throwDamaged("table " + table.name + " has " + std::to_string(rows) + " rows where " +
                 std::to_string(table.rowCount) + " should be");
  return own;
}

} // namespace

AccessTable readTable(const AccessFile& file, std::string name, std::uint32_t definitionPage) {
  const std::vector<std::uint8_t> bytes = definitionBytes(file, definitionPage);
  const AccessBytes definition(bytes.data(), bytes.size());
  const AccessFormat& format = file.format();
  AccessTable table;
  table.name = std::move(name);
  table.rowCount = definition.u32(format.rowCount);
  table.hasVariableColumns = definition.u16(format.variableColumnCount) != 0;
  table.columns = readColumns(file, definition);
  table.dataPages = dataPages(file, table, definitionPage, AccessRowId::stored(definition.u32(format.usageMap)));
  return table;
}

} // namespace LagomareQuery
