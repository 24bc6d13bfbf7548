#pragma once

#include "tools/query/sqlite/Sqlite.h"
#include <set>

namespace LagomareQuery {

/// Throws QueryError where the pages of the database do not fit together, such as where a page says that it holds fewer
/// rows than it does: SQLite itself would read fewer without a word.
void requireSoundDatabase(sqlite3* connection);

/// The same for the pages of some tables and their indexes alone. Other names than those of tables are ignored.
void requireSoundTables(sqlite3* connection, const std::set<std::string>& tables);

} // namespace LagomareQuery
