#include "tools/query/sqlite/PageCheck.h"

#include <string_view>

namespace LagomareQuery {

namespace {

/// While this object lives, SQLite's check is interrupted after its first part, which checks the pages. The second part
/// takes three times as long and compares each value with its column's type, which says nothing about damage.
class FirstPartOnly {
public:
  explicit FirstPartOnly(sqlite3* connection) : connection_(connection) {
    constexpr int instructions = 10000; // the first part takes about ten, with a single one for all pages
    sqlite3_progress_handler(
        connection_, instructions, [](void*) { return 1; }, nullptr);
  }
  ~FirstPartOnly() { sqlite3_progress_handler(connection_, 0, nullptr, nullptr); }
  FirstPartOnly(const FirstPartOnly&) = delete;
  FirstPartOnly& operator=(const FirstPartOnly&) = delete;

private:
  sqlite3* connection_;
};

/// A fault that the first part finds comes as the first row.
void requireNoFault(sqlite3* connection, const std::string& pragma) {
  const Statement check = prepare(connection, pragma);
  const FirstPartOnly firstPartOnly(connection);
  const int result = sqlite3_step(check.get());
  if (result == SQLITE_INTERRUPT)
    return;
  if (result != SQLITE_ROW)
    throwSqliteError(connection);
  const std::string_view found = textColumn(check.get(), 0);
  const bool isOfSecondPart = found.find(" value in ") != std::string_view::npos;
  if (found != "ok" && !isOfSecondPart)
    throwDamagedSqlite(std::string(found));
}

} // namespace

void requireSoundDatabase(sqlite3* connection) { requireNoFault(connection, "PRAGMA quick_check"); }

void requireSoundTables(sqlite3* connection, const std::set<std::string>& tables) {
  const Statement stored = prepare(connection, "SELECT 'sqlite_master' UNION ALL "
                                               "SELECT name FROM main.sqlite_master WHERE type = 'table'");
  while (step(stored.get())) {
    const std::string table(textColumn(stored.get(), 0));
    if (tables.count(table) != 0)
      requireNoFault(connection, "PRAGMA main.quick_check(" + quotedName(table) + ")");
  }
}

} // namespace LagomareQuery
