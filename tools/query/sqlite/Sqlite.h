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

/// Opens by file name or, where `flags` has SQLITE_OPEN_URI, by URI. Throws QueryError.
[[nodiscard]] Connection openConnection(const std::string& name, int flags);

/// Compiles the first statement of `sql`; null where it holds only blanks and comments. Throws QueryError.
[[nodiscard]] Statement prepare(sqlite3* connection, std::string_view sql);

/// Runs one statement whose rows are of no interest. Throws QueryError.
void execute(sqlite3* connection, std::string_view sql);

/// True on a row, false after the last one. Throws QueryError.
[[nodiscard]] bool step(sqlite3_stmt* statement);

/// Column of the current row as UTF-8; empty for NULL. Valid until the next step.
[[nodiscard]] std::string_view textColumn(sqlite3_stmt* statement, int column);

/// The name as SQL writes it: in double quotes, those inside doubled.
[[nodiscard]] std::string quotedName(std::string_view name);

/// Throws the connection's last error, in words for whoever has the database.
[[noreturn]] void throwSqliteError(sqlite3* connection);

/// Throws QueryError: the SQLite file is damaged; `how` says what is wrong with it.
[[noreturn]] void throwDamagedSqlite(const std::string& how);

} // namespace LagomareQuery
