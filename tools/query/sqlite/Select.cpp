#include "tools/query/sqlite/Select.h"

#include "tools/query/QueryError.h"
#include "tools/query/sqlite/Authorizer.h"
#include <utility>

namespace LagomareQuery {

namespace {

/// Whether only blanks, comments and semicolons are left. They compile to no statement.
bool isBlank(sqlite3* connection, const char* sql) {
  while (*sql != '\0') {
    sqlite3_stmt* statement = nullptr;
    const char* rest = sql;
    const int result = sqlite3_prepare_v2(connection, sql, -1, &statement, &rest);
    const bool compiled = Statement(statement) != nullptr;
    if (result != SQLITE_OK || compiled)
      return false;
    if (rest == sql)
      break;
    sql = rest;
  }
  return true;
}

void requireSelect(sqlite3_stmt* statement) {
  if (statement == nullptr)
    throw QueryError("the SQL is empty; send one statement that selects");
  if (sqlite3_stmt_isexplain(statement) != 0 || sqlite3_stmt_readonly(statement) == 0 ||
      sqlite3_column_count(statement) == 0)
    throw QueryError("the SQL is no statement that selects");
  if (sqlite3_bind_parameter_count(statement) != 0)
    throw QueryError("the SQL has a parameter (?, :name, @name or $name), for which there is no value here");
}

} // namespace

Select prepareSelect(sqlite3* connection, const std::string& sql, TableAccess access) {
  const Authorizer authorizer(connection, access);
  sqlite3_stmt* raw = nullptr;
  const char* rest = nullptr;
  const int result = sqlite3_prepare_v2(connection, sql.c_str(), -1, &raw, &rest);
  Statement statement(raw);
  if (!authorizer.refusal().empty())
    throw QueryError(authorizer.refusal());
  if (result != SQLITE_OK)
    throwSqliteError(connection);
  requireSelect(raw);
  if (!isBlank(connection, rest))
    throw QueryError("the SQL holds more than one statement; send one that selects");
  return {std::move(statement), authorizer.tables(), authorizer.readsRowidOfView()};
}

} // namespace LagomareQuery
