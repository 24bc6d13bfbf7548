#pragma once

#include <memory>
#include <sqlite3.h>
#include <string>
#include <string_view>

namespace LagomareQuery {

struct CloseConnection {
  void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
};
struct FinalizeStatement {
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Connection = std::unique_ptr<sqlite3, CloseConnection>;
using Statement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

/// Opens a database by file name or, if `flags` has SQLITE_OPEN_URI, by URI. Throws QueryError.
[[nodiscard]] Connection openConnection(const std::string& name, int flags);

/// Compiles the first statement of `sql`. Returns null if there are only blanks and comments. Throws QueryError.
[[nodiscard]] Statement prepare(sqlite3* connection, std::string_view sql);

/// Runs one statement and ignores its rows. Throws QueryError.
void execute(sqlite3* connection, std::string_view sql);

/// Goes to the next row; returns false after the last one. Throws QueryError.
[[nodiscard]] bool step(sqlite3_stmt* statement);

/// Returns a column of the current row as UTF-8; empty for NULL. Valid until the next step.
[[nodiscard]] std::string_view textColumn(sqlite3_stmt* statement, int column);

/// Returns the name as an SQL identifier in double quotes.
[[nodiscard]] std::string quotedName(std::string_view name);

/// Throws the connection's last error as a QueryError with advice for the user, or std::bad_alloc.
[[noreturn]] void throwSqliteError(sqlite3* connection);

/// Throws a QueryError that says that the SQLite file is damaged, and how.
[[noreturn]] void throwDamagedSqlite(const std::string& how);

} // namespace LagomareQuery
