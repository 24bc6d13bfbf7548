#include "tools/export/SqliteFile.h"

#include "tools/export/NumberText.h"
#include "tools/system/Failure.h"

#include <cstdint>
#include <sqlite3.h>
#include <variant>

namespace LagomareTools {

namespace {

struct Bind {
  sqlite3_stmt* statement;
  int parameter;

  int operator()(std::monostate) const { return sqlite3_bind_null(statement, parameter); }
  int operator()(std::int64_t value) const { return sqlite3_bind_int64(statement, parameter, value); }
  int operator()(double value) const { return sqlite3_bind_double(statement, parameter, value); }
  int operator()(bool value) const { return sqlite3_bind_int(statement, parameter, value ? 1 : 0); }
  int operator()(const Date& value) const {
    const std::string text = isoDate(value);
    return sqlite3_bind_text64(statement, parameter, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
  }
  int operator()(const std::string& value) const {
    return sqlite3_bind_text64(statement, parameter, value.data(), value.size(), SQLITE_STATIC, SQLITE_UTF8);
  }
};

} // namespace

void SqliteFile::Close::operator()(sqlite3* database) const { sqlite3_close(database); }

void SqliteFile::Insert::Finalize::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

SqliteFile::SqliteFile(const std::filesystem::path& file) {
  sqlite3* database = nullptr;
  const int code = sqlite3_open_v2(file.u8string().c_str(), &database,
                                   SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
  database_.reset(database);
  require(code == SQLITE_OK);
  execute("pragma journal_mode = off; pragma synchronous = off; pragma locking_mode = exclusive");
}

void SqliteFile::require(bool isDone) const {
  if (!isDone)
    throw Failure(std::string("cannot write the GeoPackage: ") + sqlite3_errmsg(database_.get()));
}

void SqliteFile::execute(const std::string& sql) {
  require(sqlite3_exec(database_.get(), sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK);
}

SqliteFile::Insert::Insert(SqliteFile& file, const std::string& sql) : file_(file) {
  sqlite3_stmt* statement = nullptr;
  const int code = sqlite3_prepare_v2(file.database_.get(), sql.c_str(), -1, &statement, nullptr);
  statement_.reset(statement);
  file.require(code == SQLITE_OK);
}

void SqliteFile::Insert::bind(int parameter, const Cell& cell) {
  file_.require(std::visit(Bind{statement_.get(), parameter}, cell) == SQLITE_OK);
}

void SqliteFile::Insert::bindBlob(int parameter, std::string_view bytes) {
  const char* const data = bytes.empty() ? nullptr : bytes.data(); // null binds NULL
  file_.require(sqlite3_bind_blob64(statement_.get(), parameter, data, bytes.size(), SQLITE_STATIC) == SQLITE_OK);
}

void SqliteFile::Insert::run() {
  file_.require(sqlite3_step(statement_.get()) == SQLITE_DONE);
  sqlite3_reset(statement_.get());
}

} // namespace LagomareTools
