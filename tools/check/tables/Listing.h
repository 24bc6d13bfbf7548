#pragma once

#include "access/QuerySource.h"
#include "tools/check/tables/Tables.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace LagomareTools {

/// The tables of a database with their columns, in stored order; system tables are left out.
struct ListedTable {
  std::string name;
  std::vector<std::string> columns;

  /// The index of a column, from 0; `columns.size()` where there is none. Case does not matter.
  [[nodiscard]] std::size_t columnOf(std::string_view name) const;
};
using Listing = std::vector<ListedTable>;

/// Nothing where the query executable cannot list them.
[[nodiscard]] std::optional<Listing> listTables(Lagomare::QuerySource& source);

/// Null where there is no such table. Case does not matter.
[[nodiscard]] const ListedTable* findTable(const Listing& listing, std::string_view name);

/// The tables, and the columns of the tables, that the import of a dialect does not read.
struct NotRead {
  std::string table;
  std::optional<std::vector<std::string>> columns; ///< nothing: the whole table
};
[[nodiscard]] std::vector<NotRead> findNotRead(const Listing& listing, const Schema& schema);

} // namespace LagomareTools
