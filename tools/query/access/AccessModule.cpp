#include "tools/query/access/AccessModule.h"

#include "tools/query/QueryError.h"
#include "tools/query/access/AccessCell.h"
#include "tools/query/access/AccessScan.h"
#include "tools/query/sqlite/Sqlite.h"
#include <cstdint>
#include <exception>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <utility>

namespace LagomareQuery {

namespace {

struct Source {
  const AccessFile& file;
  AccessObject object;
};

struct Table : sqlite3_vtab {
  Table(const AccessFile& accessFile, AccessTable accessTable)
      : sqlite3_vtab{}, file(accessFile), table(std::move(accessTable)) {}
  const AccessFile& file;
  const AccessTable table;
  std::optional<std::vector<std::uint32_t>> pages; ///< read when the first cursor is opened
};

struct Cursor : sqlite3_vtab_cursor {
  explicit Cursor(const Table& table) : sqlite3_vtab_cursor{}, scan(table.file, table.table, *table.pages) {}
  AccessScan scan;
  bool atEnd = false;
  sqlite3_int64 row = 0;
};

/// Calls `body`. No exception may pass through SQLite, so its text is stored at `error`.
template <typename Body>
int guarded(char** error, Body body) {
  try {
    body();
    return SQLITE_OK;
  } catch (const std::bad_alloc&) {
    return SQLITE_NOMEM;
  } catch (const std::exception& exception) {
    sqlite3_free(*error);
    *error = sqlite3_mprintf("%s", exception.what());
    return SQLITE_ERROR;
  }
}

std::string declaration(const AccessTable& table) {
  std::string columns;
  for (const AccessColumn& column : table.columns)
    columns += (columns.empty() ? "" : ", ") + quotedName(column.name) + " " + sqlType(column.type);
  return "CREATE TABLE x(" + columns + ")";
}

int connect(sqlite3* connection, void* source, int, const char* const*, sqlite3_vtab** table, char** error) {
  return guarded(error, [&] {
    const auto& [file, object] = *static_cast<const Source*>(source);
    if (object.isLinked)
      throw QueryError("table " + object.name + " is only linked here; it stands in another database");
    auto opened = std::make_unique<Table>(file, readTable(file, object.name, object.definitionPage));
    if (sqlite3_declare_vtab(connection, declaration(opened->table).c_str()) != SQLITE_OK)
      throwDamaged("the columns of table " + object.name);
    *table = opened.release();
  });
}

int disconnect(sqlite3_vtab* table) {
  delete static_cast<Table*>(table);
  return SQLITE_OK;
}

/// A table can only be read from its first row to its last.
int planScan(sqlite3_vtab* table, sqlite3_index_info* plan) {
  const std::uint32_t rows = static_cast<Table*>(table)->table.rowCount;
  plan->estimatedRows = rows;
  plan->estimatedCost = rows;
  return SQLITE_OK;
}

int open(sqlite3_vtab* table, sqlite3_vtab_cursor** cursor) {
  return guarded(&table->zErrMsg, [&] {
    auto& opened = *static_cast<Table*>(table);
    if (!opened.pages)
      opened.pages = readDataPages(opened.file, opened.table);
    *cursor = new Cursor(opened);
  });
}

int close(sqlite3_vtab_cursor* cursor) {
  delete static_cast<Cursor*>(cursor);
  return SQLITE_OK;
}

int next(sqlite3_vtab_cursor* cursor) {
  return guarded(&cursor->pVtab->zErrMsg, [&] {
    auto& walk = *static_cast<Cursor*>(cursor);
    walk.atEnd = !walk.scan.next();
    ++walk.row;
  });
}

int rewind(sqlite3_vtab_cursor* cursor, int, const char*, int, sqlite3_value**) {
  auto& walk = *static_cast<Cursor*>(cursor);
  walk.scan.restart();
  walk.row = 0;
  return next(cursor);
}

int isAtEnd(sqlite3_vtab_cursor* cursor) { return static_cast<Cursor*>(cursor)->atEnd ? 1 : 0; }

int giveColumn(sqlite3_vtab_cursor* cursor, sqlite3_context* context, int column) {
  return guarded(&cursor->pVtab->zErrMsg, [&] {
    const auto& table = *static_cast<const Table*>(cursor->pVtab);
    const AccessRecord& record = static_cast<Cursor*>(cursor)->scan.record();
    giveCell(context, table.file, table.table.columns[static_cast<std::size_t>(column)], record);
  });
}

int giveRowid(sqlite3_vtab_cursor* cursor, sqlite3_int64* rowid) {
  *rowid = static_cast<Cursor*>(cursor)->row;
  return SQLITE_OK;
}

/// A module without xCreate is a table with the module's name.
sqlite3_module makeModule() {
  sqlite3_module module{};
  module.xConnect = connect;
  module.xDisconnect = disconnect;
  module.xBestIndex = planScan;
  module.xOpen = open;
  module.xClose = close;
  module.xFilter = rewind;
  module.xNext = next;
  module.xEof = isAtEnd;
  module.xColumn = giveColumn;
  module.xRowid = giveRowid;
  return module;
}

} // namespace

void listTables(sqlite3* connection, const std::vector<AccessObject>& objects) {
  execute(connection, "PRAGMA writable_schema = ON");
  const Statement insert =
      prepare(connection, "INSERT INTO sqlite_master(type, name, tbl_name, rootpage, sql) "
                          "VALUES('table', ?1, ?1, 0, printf('CREATE VIRTUAL TABLE \"%w\" USING \"%w\"', ?1, ?1))");
  for (const AccessObject& object : objects) {
    if (object.isLinked || object.isSystem)
      continue;
    sqlite3_bind_text(insert.get(), 1, object.name.data(), static_cast<int>(object.name.size()), SQLITE_STATIC);
    static_cast<void>(step(insert.get()));
    sqlite3_reset(insert.get());
  }
  execute(connection, "PRAGMA writable_schema = RESET"); // reads the schema again
}

void registerAccessTable(sqlite3* connection, const AccessFile& file, const AccessObject& object) {
  static const sqlite3_module module = makeModule();
  auto source = std::make_unique<Source>(Source{file, object});
  const auto destroy = [](void* owned) { delete static_cast<Source*>(owned); };
  // SQLite takes ownership of the source, even if it fails.
  if (sqlite3_create_module_v2(connection, object.name.c_str(), &module, source.release(), destroy) != SQLITE_OK)
    throwSqliteError(connection);
}

} // namespace LagomareQuery
