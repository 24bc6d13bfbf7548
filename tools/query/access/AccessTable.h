#pragma once

#include "tools/query/access/AccessColumn.h"

namespace LagomareQuery {

/// A table's definition, read from the pages that hold it and checked against the pages that hold its rows.
struct AccessTable {
  std::string name;
  std::uint32_t rowCount = 0; ///< 0: unknown, the database was not closed properly
  bool hasVariableColumns = false;
  std::vector<AccessColumn> columns;    ///< in the order of `select *`
  std::vector<std::uint32_t> dataPages; ///< in stored order
};

/// Reads the definition that begins on that page. Throws QueryError, also where the pages hold other rows than the
/// definition says, so that no row is missed without a word.
[[nodiscard]] AccessTable readTable(const AccessFile& file, std::string name, std::uint32_t definitionPage);

} // namespace LagomareQuery
