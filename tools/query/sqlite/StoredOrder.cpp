#include "tools/query/sqlite/StoredOrder.h"

#include "tools/query/QueryError.h"
#include <algorithm>
#include <string_view>
#include <vector>

namespace LagomareQuery {

namespace {

bool contains(std::string_view text, std::string_view part) { return text.find(part) != std::string_view::npos; }

bool sameName(const char* left, const std::string& right) { return sqlite3_stricmp(left, right.c_str()) == 0; }

/// Whether SQLite reads each table by rowid for this query.
bool readsByRowid(sqlite3* connection, const std::string& sql) {
  constexpr int detailColumn = 3;
  const Statement plan = prepare(connection, "EXPLAIN QUERY PLAN " + sql);
  while (step(plan.get())) {
    const std::string_view detail = textColumn(plan.get(), detailColumn);
    if (contains(detail, "INDEX") && !contains(detail, "VIRTUAL TABLE INDEX"))
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

std::vector<std::string> columnsOf(sqlite3* connection, const std::string& table) {
  const Statement all = prepare(connection, "SELECT * FROM main." + quotedName(table));
  const int count = sqlite3_column_count(all.get());
  std::vector<std::string> names;
  names.reserve(static_cast<std::size_t>(count));
  for (int column = 0; column < count; ++column)
    names.emplace_back(sqlite3_column_name(all.get(), column));
  return names;
}

/// Returns the names of the rowid in this table; none if it has no rowid. A column can have such a name, which then
/// does not mean the rowid.
std::vector<std::string> rowidNamesOf(sqlite3* connection, const std::string& table,
                                      const std::vector<std::string>& columns) {
  std::vector<std::string> names;
  for (const char* name : {"rowid", "_rowid_", "oid"})
    if (std::none_of(columns.begin(), columns.end(), [&](const auto& column) { return sameName(name, column); }))
      names.emplace_back(name);
  sqlite3_stmt* probe = nullptr;
  const std::string sql = "SELECT " + (names.empty() ? "NULL" : names.front()) + " FROM main." + quotedName(table);
  const bool hasRowid = sqlite3_prepare_v2(connection, sql.c_str(), -1, &probe, nullptr) == SQLITE_OK;
  sqlite3_finalize(probe);
  return hasRowid ? names : std::vector<std::string>();
}

/// Returns the ORDER BY terms for the stored order of a table without rowid: its primary key.
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

/// LIMIT -1 limits nothing, but without it SQLite would merge the view into the query and drop its order.
void shadowTable(sqlite3* connection, const std::string& table, bool hasRowidColumns) {
  const std::vector<std::string> columns = columnsOf(connection, table);
  const std::vector<std::string> names = rowidNamesOf(connection, table, columns);
  std::vector<std::string> terms;
  terms.reserve(columns.size() + names.size());
  for (const std::string& column : columns) // in other letters, so that the column is not taken for the rowid
    terms.push_back(quotedName(column) + (column == trueRowid ? " AS rowid" : ""));
  if (hasRowidColumns)
    for (const std::string& name : names)
      terms.push_back(name + " AS " + quotedName(name));
  const std::string order = names.empty() ? joined(keyTermsOf(connection, table)) : names.front();
  execute(connection, "CREATE TEMP VIEW " + quotedName(table) + " AS SELECT " + joined(terms) + " FROM main." +
                          quotedName(table) + " NOT INDEXED" +
                          (order.empty() ? "" : " ORDER BY " + order + " LIMIT -1"));
}

void shadowTables(sqlite3* connection, bool haveRowidColumns) {
  const auto tables = texts(connection, "SELECT name FROM main.sqlite_master WHERE type = 'table' AND rootpage > 0 "
                                        "AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\'");
  for (const std::string& table : tables)
    shadowTable(connection, table, haveRowidColumns);
}

/// Views of the database read its tables directly; temporary views with the same definitions read the temporary views
/// of the tables.
void shadowViews(sqlite3* connection) {
  constexpr std::string_view asStored = "CREATE VIEW "; // the text that SQLite stores always begins with this
  for (const std::string& sql : texts(connection, "SELECT sql FROM main.sqlite_master WHERE type = 'view'"))
    execute(connection, "CREATE TEMP VIEW " + sql.substr(std::min(sql.size(), asStored.size())));
}

} // namespace

void StoredOrderQuery::DropShadows::operator()(sqlite3* connection) const {
  sqlite3_exec(connection, "ROLLBACK TO shadows; RELEASE shadows", nullptr, nullptr, nullptr);
}

StoredOrderQuery::StoredOrderQuery(sqlite3* connection, const std::string& sql)
    : select_(prepareSelect(connection, sql, TableAccess::direct)) {
  if (readsByRowid(connection, sql))
    return;
  const int columns = sqlite3_column_count(statement());
  prepareWithShadows(connection, sql, Rowid::hidden);
  if (select_.readsRowidOfView) // a view's rowid is NULL
    prepareWithShadows(connection, sql, Rowid::asColumn);
  if (sqlite3_column_count(statement()) != columns) // * has returned the rowid too
    throw QueryError("rowid and * cannot be used together where an index would be; name the columns");
}

void StoredOrderQuery::prepareWithShadows(sqlite3* connection, const std::string& sql, Rowid rowid) {
  select_.statement.reset();
  shadows_.reset();
  execute(connection, "SAVEPOINT shadows");
  shadows_.reset(connection);
  shadowTables(connection, rowid == Rowid::asColumn);
  shadowViews(connection);
  select_ = prepareSelect(connection, sql, TableAccess::shadowsOnly);
}

} // namespace LagomareQuery
