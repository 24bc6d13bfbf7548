#include "tools/query/AccessDatabase.h"

#include "tools/query/QueryError.h"

namespace LagomareQuery {

/// Stands in where the program is built without libmdb.
Database openAccessDatabase(const std::filesystem::path&) {
  throw QueryError("this build of lagomare-query lacks Access support; build it with libmdb (LAGOMARE_ACCESS), or "
                   "convert the database to SQLite");
}

} // namespace LagomareQuery
