#pragma once

#include "tools/query/access/AccessCatalog.h"
#include <sqlite3.h>

namespace LagomareQuery {

/// Lets SQL on `connection` read the object under its name as a table, whose definition is read when a query first
/// names it. `file` must outlive the connection.
void registerAccessTable(sqlite3* connection, const AccessFile& file, const AccessObject& object);

/// Makes the tables that people have put into the database stand in sqlite_master. They must be registered.
void listTables(sqlite3* connection, const std::vector<AccessObject>& objects);

} // namespace LagomareQuery
