#include "bench/Sqlite.h"

#include <stdexcept>

namespace LagomareBench {

namespace {

void check(const Sqlite& sqlite, int result) {
  if (result != SQLITE_OK)
    throw std::runtime_error(std::string("SQLite: ") + sqlite3_errmsg(sqlite.get()));
}

Sqlite openWith(const std::string& file, int flags) {
  sqlite3* connection = nullptr;
  const int result = sqlite3_open_v2(file.c_str(), &connection, flags, nullptr);
  Sqlite sqlite(connection);
  check(sqlite, result);
  return sqlite;
}

} // namespace

Sqlite create(const std::string& file) {
  Sqlite sqlite = openWith(file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  execute(sqlite, "pragma journal_mode = off; pragma synchronous = off");
  return sqlite;
}

Sqlite open(const std::string& file) { return openWith(file, SQLITE_OPEN_READONLY); }

void execute(const Sqlite& sqlite, const std::string& sql) {
  check(sqlite, sqlite3_exec(sqlite.get(), sql.c_str(), nullptr, nullptr, nullptr));
}

Statement prepare(const Sqlite& sqlite, const std::string& sql) {
  sqlite3_stmt* statement = nullptr;
  check(sqlite, sqlite3_prepare_v2(sqlite.get(), sql.c_str(), -1, &statement, nullptr));
  return Statement(statement);
}

} // namespace LagomareBench
