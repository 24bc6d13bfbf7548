#pragma once

#include "tools/query/sqlite/Sqlite.h"

namespace LagomareQuery {

/// How a statement reaches the tables of the database.
enum class TableAccess {
  direct,
  shadowsOnly, ///< only through the views that shadow them (StoredOrder.h)
};

/// Compiles the one statement that `sql` must hold and that must select; blanks, comments and semicolons may stand
/// around it. Whatever writes, attaches or changes settings is refused. Throws QueryError.
[[nodiscard]] Statement prepareSelect(sqlite3* connection, const std::string& sql, TableAccess access);

} // namespace LagomareQuery
