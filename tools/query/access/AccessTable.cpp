#include "tools/query/access/AccessTable.h"

#include "tools/query/access/AccessUsageMap.h"
#include <algorithm>
#include <utility>

namespace LagomareQuery {

namespace {

constexpr std::size_t pageHeader = 8;
constexpr std::size_t nextPageOffset = 4; // of table definitions
constexpr std::size_t ownerOffset = 4;    // of data pages: the table's definition page
constexpr std::size_t mostDefinitionPages = 256;

/// Returns the bytes of a definition that may extend over several pages.
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

/// Counts the rows of a page. Appends the pointers to rows that were moved to other pages.
std::size_t countRows(const AccessPage& page, const AccessFormat& format, std::vector<std::uint32_t>& moved) {
  std::size_t rows = 0;
  for (std::size_t slot = 0, count = slotCount(page, format); slot < count; ++slot) {
    const AccessSlot kind = slotOf(page, format, slot);
    if (kind != AccessSlot::deleted)
      ++rows;
    if (kind == AccessSlot::pointer)
      moved.push_back(rowBytes(page, format, slot).u32(0));
  }
  return rows;
}

void requireDifferent(std::vector<std::uint32_t>& moved, const std::string& table) {
  std::sort(moved.begin(), moved.end());
  if (std::adjacent_find(moved.begin(), moved.end()) != moved.end())
    throwDamaged("table " + table + " has two rows that moved to the same place");
}

} // namespace

AccessTable readTable(const AccessFile& file, std::string name, std::uint32_t definitionPage) {
  const std::vector<std::uint8_t> bytes = definitionBytes(file, definitionPage);
  const AccessBytes definition(bytes.data(), bytes.size());
  const AccessFormat& format = file.format();
  AccessTable table;
  table.name = std::move(name);
  table.rowCount = definition.u32(format.rowCount);
  const std::size_t variableColumnCount = definition.u16(format.variableColumnCount);
  table.hasVariableColumns = variableColumnCount != 0;
  table.columns = readColumns(file, table.name, definition);
  table.shapes = rowShapes(table.columns, definition.u16(format.endOfColumnNumbers), variableColumnCount, format);
  table.definitionPage = definitionPage;
  table.usageMap = AccessRowId::stored(definition.u32(format.usageMap));
  return table;
}

/// A usage map can mark pages that no longer belong to the table. The number of rows shows whether the remaining pages
/// are complete.
std::vector<std::uint32_t> readDataPages(const AccessFile& file, const AccessTable& table) {
  std::vector<std::uint32_t> own;
  std::size_t rows = 0;
  std::vector<std::uint32_t> moved;
  const std::vector<std::uint32_t> marked = pagesOf(file, table.usageMap);
  AccessPage page;
  for (const std::uint32_t pageNumber : marked) {
    file.read(pageNumber, page);
    if (!page.is(AccessPage::Kind::data) || page.bytes().u32(ownerOffset) != table.definitionPage)
      continue;
    own.push_back(pageNumber);
    rows += countRows(page, file.format(), moved);
  }
  const bool unknown = table.rowCount == 0 && own.size() == marked.size();
  if (rows != table.rowCount && !unknown)
    throwDamaged("table " + table.name + " has " + std::to_string(rows) + " rows where " +
                 std::to_string(table.rowCount) + " should be");
  requireDifferent(moved, table.name);
  return own;
}

} // namespace LagomareQuery
