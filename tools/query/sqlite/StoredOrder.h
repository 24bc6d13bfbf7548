#pragma once

#include "tools/query/sqlite/Sqlite.h"

namespace LagomareQuery {

/// Compiles the one selecting statement in `sql` so that the rows of each table come in stored order, by rowid,
/// whatever indexes exist: row order carries meaning, and an index that covers a query would shuffle it. What the
/// statement itself orders, groups or makes distinct comes as it says. Throws QueryError.
///
/// Mostly the statement is compiled as it is. Where SQLite would use an index, temporary views of the tables' names
/// shadow the tables, each selecting its table's rows by rowid, without indexes.
[[nodiscard]] Statement prepareInStoredOrder(sqlite3* connection, const std::string& sql);

} // namespace LagomareQuery
