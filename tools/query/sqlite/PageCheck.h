#pragma once

#include "tools/query/sqlite/Sqlite.h"
#include <set>
#include <string>

namespace LagomareQuery {

/// Throws QueryError if the pages of the database are damaged, for example if a page claims to hold fewer rows than it
/// does. Without this check SQLite reads fewer rows and reports no error.
void requireSoundDatabase(sqlite3* connection);

/// Checks only the pages of some tables and their indexes. Names that are no tables are ignored.
void requireSoundTables(sqlite3* connection, const std::set<std::string>& tables);

} // namespace LagomareQuery
