#pragma once

#include "tools/query/sqlite/Sqlite.h"
#include <set>
#include <string>
#include <string_view>

namespace LagomareQuery {

/// How a statement may read the tables of the database.
enum class TableAccess {
  direct,
  shadowsOnly, ///< only through the views with the same names, see StoredOrder.h
};

struct Select {
  Statement statement;
  std::set<std::string> tables;  ///< tables of the main schema that the statement reads
  bool readsRowidOfView = false; ///< the rowid of a temporary view, or a column with exactly the name trueRowid
};

/// The name by which SQLite reports that a rowid is read.
inline constexpr std::string_view trueRowid = "ROWID";

/// Compiles `sql`, which must consist of one statement that selects; blanks, comments and semicolons around it are
/// allowed. Refuses everything that writes, attaches or changes settings. Throws QueryError.
[[nodiscard]] Select prepareSelect(sqlite3* connection, const std::string& sql, TableAccess access);

} // namespace LagomareQuery
