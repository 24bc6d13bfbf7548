#pragma once

#include "tools/query/sqlite/Sqlite.h"
#include <set>

namespace LagomareQuery {

/// How a statement reaches the tables of the database.
enum class TableAccess {
  direct,
  shadowsOnly, ///< only through the views that shadow them (StoredOrder.h)
};

struct Select {
  Statement statement;
  std::set<std::string> tables;  ///< those of the main schema that it reads
  bool readsRowidOfView = false; ///< of a temporary view, or a column of it with the very name trueRowid
};

/// What SQLite calls a rowid by which no column of the table goes.
inline constexpr std::string_view trueRowid = "ROWID";

/// Compiles the one statement that `sql` must hold and that must select; blanks, comments and semicolons may stand
/// around it. Whatever writes, attaches or changes settings is refused. Throws QueryError.
[[nodiscard]] Select prepareSelect(sqlite3* connection, const std::string& sql, TableAccess access);

} // namespace LagomareQuery
