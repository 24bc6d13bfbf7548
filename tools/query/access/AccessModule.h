#pragma once

#include "tools/query/access/AccessCatalog.h"
#include <sqlite3.h>
#include <vector>

namespace LagomareQuery {

/// Makes a table of the Access file available under its name in SQL. Its definition is read when a query first names
/// it. `file` must outlive the connection.
void registerAccessTable(sqlite3* connection, const AccessFile& file, const AccessObject& object);

/// Adds the tables that users have made, which must be registered, to sqlite_master.
void listTables(sqlite3* connection, const std::vector<AccessObject>& objects);

} // namespace LagomareQuery
