#pragma once

#include <memory>
#include <sqlite3.h>
#include <string>

namespace LagomareBench {

struct CloseSqlite {
  void operator()(sqlite3* connection) const { sqlite3_close(connection); }
};
struct FinalizeStatement {
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Sqlite = std::unique_ptr<sqlite3, CloseSqlite>;
using Statement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

// Each throws std::runtime_error with SQLite's message.

/// A new database, written without regard to what a crash would leave.
[[nodiscard]] Sqlite create(const std::string& file);
/// An existing one, to read.
[[nodiscard]] Sqlite open(const std::string& file);
void execute(const Sqlite& sqlite, const std::string& sql);
[[nodiscard]] Statement prepare(const Sqlite& sqlite, const std::string& sql);

} // namespace LagomareBench
