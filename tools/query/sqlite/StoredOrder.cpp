#include "tools/query/sqlite/StoredOrder.h"

#include "tools/query/QueryError.h"
#include "tools/query/sqlite/Select.h"
#include <algorithm>
#include <array>
#include <cctype>
#include <vector>

namespace LagomareQuery {

namespace {

constexpr std::array<const char*, 3> rowidNames = {"rowid", "_rowid_", "oid"};

enum class Rowid { hidden, asColumn };

bool contains(std::string_view text, std::string_view part) { return text.find(part) != std::string_view::npos; }

bool sameName(const char* left, const std::string& right) { return sqlite3_stricmp(left, right.c_str()) == 0; }

/// Whether the plan that SQLite makes by itself reads each table by rowid. An index that SQLite builds for the query
/// alone keeps the order of rows with equal keys.
bool readsByRowid(sqlite3* connection, const std::string& sql) {
  constexpr int detailColumn = 3;
  const Statement plan = prepare(connection, "EXPLAIN QUERY PLAN " + sql);
  while (step(plan.get())) {
    const std::string_view detail = textColumn(plan.get(), detailColumn);
    if (contains(detail, "INDEX") && !contains(detail, "USING AUTOMATIC ") && !contains(detail, "VIRTUAL TABLE INDEX"))
      return false;
  }
  return true;
}

std::vector<std::string> texts(sqlite3* connection, std::string_view sql) {
  std::vector<std::string> found;
  for (const Statement rows = prepare(connection, sql); step(rows.get());)
    found.emplace_back(textColumn(rows.get(), 0));
  return found;
}

/// The names that mean the rowid in this table; none in a table without rowid. A column takes such a name for itself.
std::vector<std::string> rowidNamesOf(sqlite3* connection, const std::string& table) {
  const Statement all = prepare(connection, "SELECT * FROM main." + quotedName(table));
  std::vector<std::string> names(rowidNames.begin(), rowidNames.end());
  for (int column = 0; column < sqlite3_column_count(all.get()); ++column) {
    const char* taken = sqlite3_column_name(all.get(), column);
    names.erase(std::remove_if(names.begin(), names.end(), [&](const auto& name) { return sameName(taken, name); }),
                names.end());
  }
  sqlite3_stmt* probe = nullptr;
  const std::string sql = "SELECT " + (names.empty() ? "NULL" : names.front()) + " FROM main." + quotedName(table);
  const bool hasRowid = sqlite3_prepare_v2(connection, sql.c_str(), -1, &probe, nullptr) == SQLITE_OK;
  sqlite3_finalize(probe);
  return hasRowid ? names : std::vector<std::string>();
}

/// The terms that sort a table without rowid as it is stored, by its primary key.
std::vector<std::string> keyTermsOf(sqlite3* connection, const std::string& table) {
  const Statement rows =
      prepare(connection, "SELECT printf('\"%w\" COLLATE \"%w\" %s', part.name, part.coll, iif(part.desc, 'DESC', '')) "
                          "FROM pragma_index_list(?) AS list, pragma_index_xinfo(list.name) AS part "
                          "WHERE list.origin = 'pk' AND part.key = 1 ORDER BY part.seqno");
  sqlite3_bind_text(rows.get(), 1, table.c_str(), -1, SQLITE_STATIC);
  std::vector<std::string> terms;
  while (step(rows.get()))
    terms.emplace_back(textColumn(rows.get(), 0));
  return terms;
}

std::string joined(const std::vector<std::string>& parts) {
  std::string text;
  for (const std::string& part : parts)
    text += (text.empty() ? "" : ", ") + part;
  return text;
}

/// The limit, which limits nothing, keeps SQLite from dissolving the view into a join and its order with it.
void shadowTable(sqlite3* connection, const std::string& table, Rowid rowid) {
  const std::vector<std::string> names = rowidNamesOf(connection, table);
  std::string columns = "*";
  if (rowid == Rowid::asColumn)
    for (const std::string& name : names)
      columns += ", " + name + " AS " + quotedName(name);
  const std::string order = names.empty() ? joined(keyTermsOf(connection, table)) : names.front();
  execute(connection, "CREATE TEMP VIEW " + quotedName(table) + " AS SELECT " + columns + " FROM main." +
                          quotedName(table) + " NOT INDEXED" +
                          (order.empty() ? "" : " ORDER BY " + order + " LIMIT -1"));
}

void shadowTables(sqlite3* connection, Rowid rowid) {
  const auto tables = texts(connection, "SELECT name FROM main.sqlite_master WHERE type = 'table' AND rootpage > 0 "
                                        "AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\'");
  for (const std::string& table : tables)
    shadowTable(connection, table, rowid);
}

/// A stored view sees only the stored tables; its twin in the temporary schema sees their shadows.
void shadowViews(sqlite3* connection) {
  constexpr std::string_view asStored = "CREATE VIEW "; // SQLite stores every view's text with this beginning
  for (const std::string& sql : texts(connection, "SELECT sql FROM main.sqlite_master WHERE type = 'view'"))
    execute(connection, "CREATE TEMP VIEW " + sql.substr(std::min(sql.size(), asStored.size())));
}

/// Whether a word of the SQL may mean a rowid.
bool mentionsRowid(const std::string& sql) {
  const auto isWordCharacter = [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return c == '_' || byte >= 0x80 || std::isalnum(byte) != 0;
  };
  for (auto begin = sql.begin(); begin != sql.end();) {
    const auto end = std::find_if_not(begin, sql.end(), isWordCharacter);
    const std::string word(begin, end);
    if (std::any_of(rowidNames.begin(), rowidNames.end(), [&](const char* name) { return sameName(name, word); }))
      return true;
    begin = std::find_if(end, sql.end(), isWordCharacter);
  }
  return false;
}

} // namespace

void StoredOrderQuery::DropShadows::operator()(sqlite3* connection) const {
  sqlite3_exec(connection, "ROLLBACK TO shadows; RELEASE shadows", nullptr, nullptr, nullptr);
}

StoredOrderQuery::StoredOrderQuery(sqlite3* connection, const std::string& sql)
    : statement_(prepareSelect(connection, sql, TableAccess::direct)) {
  if (readsByRowid(connection, sql))
    return;
  statement_.reset();
  // A view has no rowid of its own. As a column it would show up among those that * stands for.
  const Rowid rowid = mentionsRowid(sql) ? Rowid::asColumn : Rowid::hidden;
  if (rowid == Rowid::asColumn && contains(sql, "*"))
    throw QueryError("rowid and * cannot be used together where an index would be; name the columns");
  execute(connection, "SAVEPOINT shadows");
  shadows_.reset(connection);
  shadowTables(connection, rowid);
  shadowViews(connection);
  statement_ = prepareSelect(connection, sql, TableAccess::shadowsOnly);
}

} // namespace LagomareQuery
