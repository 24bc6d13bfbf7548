#include "tools/query/Database.h"

#include "tools/query/DateFormat.h"
#include "tools/query/QueryError.h"
#include "tools/query/access/AccessDatabase.h"
#include "tools/query/sqlite/PageCheck.h"
#include "tools/query/sqlite/SqliteDatabase.h"
#include <array>
#include <cerrno>
#include <fstream>
#include <string_view>
#include <system_error>

namespace LagomareQuery {

namespace {

namespace fs = std::filesystem;
using namespace std::string_view_literals;

constexpr auto sqliteSignature = "SQLite format 3\0"sv;
constexpr auto jetSignature = "\0\1\0\0Standard Jet DB"sv;
constexpr auto aceSignature = "\0\1\0\0Standard ACE DB"sv;

/// Reads as many bytes as the longest signature has, fewer if the file is shorter.
std::string firstBytes(const fs::path& file) {
  errno = 0;
  std::ifstream stream(file, std::ios::binary);
  if (!stream)
    throw QueryError("the database '" + file.u8string() +
                     "' cannot be opened: " + std::generic_category().message(errno) + "; check that you may read it");
  std::array<char, jetSignature.size()> bytes{};
  stream.read(bytes.data(), bytes.size());
  return {bytes.data(), static_cast<std::size_t>(stream.gcount())};
}

void requireOrdinaryFile(const fs::path& file) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  const std::string name = "the database '" + file.u8string() + "' ";
  if (status.type() == fs::file_type::not_found)
    throw QueryError(name + "does not exist; check its path");
  if (error)
    throw QueryError(name + "cannot be opened: " + error.message());
  if (fs::is_directory(status))
    throw QueryError(name + "is a folder; name the file in it");
  if (!fs::is_regular_file(status))
    throw QueryError(name + "is no ordinary file");
}

bool beginsWith(std::string_view text, std::string_view beginning) {
  return text.substr(0, beginning.size()) == beginning;
}

void setOption(sqlite3* connection, int option, int value) {
  if (sqlite3_db_config(connection, option, value, nullptr) != SQLITE_OK)
    throwSqliteError(connection);
}

} // namespace

Database openDatabase(const std::string& path) {
  const fs::path file = fs::u8path(path);
  requireOrdinaryFile(file);
  const std::string bytes = firstBytes(file);
  if (beginsWith(bytes, sqliteSignature))
    return openSqliteDatabase(file);
  if (beginsWith(bytes, jetSignature) || beginsWith(bytes, aceSignature))
    return openAccessDatabase(file);
  throw QueryError("'" + path + "' is " + (bytes.empty() ? "empty" : "neither a SQLite nor an Access database") +
                   "; check that it is the project's file and arrived whole");
}

void requireSound(Database& database) {
  if (database.needsCheck)
    requireSoundDatabase(database.connection.get());
  database.needsCheck = false;
}

void requireUnchanged(const Database& database) {
  if (database.stamp && !(LagomareTools::FileStamp::of(database.file) == *database.stamp))
    throw DatabaseChanged("the database was changed while it was read; close it in the other program, then try again");
}

void prepareForQueries(sqlite3* connection) {
  constexpr int lockTimeout = 5000; // ms
  sqlite3_busy_timeout(connection, lockTimeout);
  setOption(connection, SQLITE_DBCONFIG_DQS_DML, 0);
  setOption(connection, SQLITE_DBCONFIG_DQS_DDL, 0);
  setOption(connection, SQLITE_DBCONFIG_DEFENSIVE, 1);
  setOption(connection, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0);
  // Otherwise SQLite may build an index for a join and read the rows in the order of that index.
  execute(connection, "PRAGMA automatic_index = OFF");
  registerDateFormat(connection);
}

} // namespace LagomareQuery
