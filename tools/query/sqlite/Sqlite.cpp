#include "tools/query/sqlite/Sqlite.h"

#include "tools/query/QueryError.h"
#include <limits>
#include <new>

namespace LagomareQuery {

Connection openConnection(const std::string& name, int flags) {
  sqlite3* raw = nullptr;
  const int result = sqlite3_open_v2(name.c_str(), &raw, flags | SQLITE_OPEN_NOMUTEX, nullptr);
  Connection connection(raw);
  if (!connection)
    throw std::bad_alloc();
  if (result != SQLITE_OK)
    throwSqliteError(raw);
  sqlite3_extended_result_codes(raw, 1);
  return connection;
}

Statement prepare(sqlite3* connection, std::string_view sql) {
  if (sql.size() > static_cast<std::size_t>(std::numeric_limits<int>::max()))
    throw QueryError("the SQL text is too long");
  sqlite3_stmt* raw = nullptr;
  if (sqlite3_prepare_v2(connection, sql.data(), static_cast<int>(sql.size()), &raw, nullptr) != SQLITE_OK)
    throwSqliteError(connection);
  return Statement(raw);
}

void execute(sqlite3* connection, std::string_view sql) {
  const Statement statement = prepare(connection, sql);
  while (step(statement.get())) {
  }
}

bool step(sqlite3_stmt* statement) {
  const int result = sqlite3_step(statement);
  if (result != SQLITE_ROW && result != SQLITE_DONE)
    throwSqliteError(sqlite3_db_handle(statement));
  return result == SQLITE_ROW;
}

std::string_view textColumn(sqlite3_stmt* statement, int column) {
  const void* text = sqlite3_column_text(statement, column);
  const int bytes = sqlite3_column_bytes(statement, column);
  return text != nullptr ? std::string_view(static_cast<const char*>(text), static_cast<std::size_t>(bytes))
                         : std::string_view();
}

std::string quotedName(std::string_view name) {
  std::string quoted = "\"";
  for (const char character : name)
    quoted.append(character == '"' ? 2 : 1, character);
  return quoted + '"';
}

void throwSqliteError(sqlite3* connection) {
  const std::string text = sqlite3_errmsg(connection);
  switch (sqlite3_errcode(connection) & 0xff) {
  case SQLITE_NOMEM:
    throw std::bad_alloc();
  case SQLITE_BUSY:
    throw QueryError("the database is locked; close the program that has it open, then try again");
  case SQLITE_CORRUPT:
  case SQLITE_NOTADB:
    throwDamagedSqlite(text);
  case SQLITE_CANTOPEN:
  case SQLITE_IOERR:
    throw QueryError("the database cannot be read (" + text +
                     "); check the file, its permissions, its disk, and that its path is not overlong");
  default:
    throw QueryError(text);
  }
}

void throwDamagedSqlite(const std::string& how) {
  throw QueryError("the database is damaged (" + how + "); restore it from a backup");
}

} // namespace LagomareQuery
