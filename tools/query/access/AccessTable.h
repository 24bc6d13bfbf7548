#pragma once

#include "tools/query/access/AccessColumn.h"
#include "tools/query/access/AccessRow.h"
#include "tools/query/access/AccessRowShape.h"

#include <cstdint>
#include <string>
#include <vector>

namespace LagomareQuery {

/// A table's definition.
struct AccessTable {
  std::string name;
  std::uint32_t rowCount = 0; ///< 0 if unknown, as when the database was not closed properly
  bool hasVariableColumns = false;
  std::vector<AccessColumn> columns;  ///< in the order of `select *`
  std::vector<AccessRowShape> shapes; ///< of rows, by their number of columns
  std::uint32_t definitionPage = 0;
  AccessRowId usageMap; ///< says which pages hold the table's rows
};

/// Reads the definition that begins on a page. Throws QueryError.
[[nodiscard]] AccessTable readTable(const AccessFile& file, std::string name, std::uint32_t definitionPage);

/// Returns the pages that hold the table's rows, in stored order. Throws QueryError if they hold more or fewer rows
/// than the definition says, or one row twice, so that no row is lost silently.
[[nodiscard]] std::vector<std::uint32_t> readDataPages(const AccessFile& file, const AccessTable& table);

} // namespace LagomareQuery
