#include "tools/query/sqlite/SqliteDatabase.h"

#include "tools/query/QueryError.h"
#include "tools/query/sqlite/PrivateCopy.h"
#include "tools/query/sqlite/WriteAheadLog.h"
#include <algorithm>
#include <cstdint>
#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

namespace LagomareQuery {

namespace {

namespace fs = std::filesystem;
using LagomareTools::FileStamp;

/// Returns the file as a URI, with all special bytes escaped.
std::string uriOf(const fs::path& file, const char* parameters) {
  static constexpr std::string_view digits = "0123456789ABCDEF";
  static constexpr std::string_view plain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789/._-~:";
  const std::string path = file.generic_u8string();
  std::string uri = path.front() == '/' ? "file:" : "file:/";
  for (const char character : path) {
    const auto byte = static_cast<unsigned char>(character);
    if (plain.find(character) != std::string_view::npos)
      uri += character;
    else
      uri.append({'%', digits[byte >> 4], digits[byte & 0x0F]});
  }
  return uri + "?" + parameters;
}

/// SQLite opens the file only when it first reads from it. The transaction, and with it the lock, lasts until the
/// connection is closed.
int readForTheFirstTime(sqlite3* connection) {
  return sqlite3_exec(connection, "BEGIN; SELECT count(*) FROM sqlite_master", nullptr, nullptr, nullptr);
}

/// If a file ends within a page, SQLite reads the rest of the page as zeros. It notices itself if whole pages are
/// missing.
void requireWholePages(sqlite3* connection, std::uintmax_t fileSize) {
  const Statement pageSize = prepare(connection, "PRAGMA page_size");
  if (step(pageSize.get()) && fileSize % static_cast<std::uintmax_t>(sqlite3_column_int64(pageSize.get(), 0)) != 0)
    throwDamagedSqlite("it is cut off: it ends within a page, after " + std::to_string(fileSize) + " bytes");
}

bool isWriteAheadMode(const fs::path& file) {
  constexpr std::streamoff writeVersionOffset = 18;
  std::ifstream stream(file, std::ios::binary);
  stream.seekg(writeVersionOffset);
  const int writeVersion = stream.get();
  const int readVersion = stream.get();
  return writeVersion == 2 || readVersion == 2;
}

Database openCopy(const fs::path& file) {
  const auto copy = std::make_shared<PrivateCopy>(file);
  if (const fs::path log = fs::path(copy->database()) += "-wal"; FileStamp::of(log).size > 0)
    requireWholeLog(log);
  Connection connection = openConnection(uriOf(copy->database(), "mode=rw"), SQLITE_OPEN_READWRITE | SQLITE_OPEN_URI);
  prepareForQueries(connection.get());
  sqlite3_db_config(connection.get(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
  const std::uintmax_t sizeBefore = FileStamp::of(copy->database()).size;
  if (readForTheFirstTime(connection.get()) != SQLITE_OK)
    throwSqliteError(connection.get());
  // Rolling back a hot journal removes a page that was being added, but it also extends a file that was cut off.
  requireWholePages(connection.get(), std::min(sizeBefore, FileStamp::of(copy->database()).size));
  copy->removeFiles();
  return {copy, std::move(connection), file, std::nullopt, true};
}

bool holdsBytes(const fs::path& file, const char* suffix) { return FileStamp::of(fs::path(file) += suffix).size > 0; }

/// `stampBefore` is the stamp from before the file was opened, for a file that SQLite does not lock.
Database openInPlace(const fs::path& file, const char* parameters, std::optional<FileStamp> stampBefore) {
  Connection connection = openConnection(uriOf(file, parameters), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
  prepareForQueries(connection.get());
  const int result = readForTheFirstTime(connection.get());
  if (result == SQLITE_READONLY_ROLLBACK || result == SQLITE_READONLY_RECOVERY) // a hot journal
    return openCopy(file);
  if (result != SQLITE_OK)
    throwSqliteError(connection.get());
  requireWholePages(connection.get(), FileStamp::of(file).size);
  return {nullptr, std::move(connection), file, stampBefore.value_or(FileStamp::of(file)), true};
}

} // namespace

Database openSqliteDatabase(const fs::path& given) {
  const fs::path file = fs::canonical(given); // the -wal file is beside the file itself, not beside a link to it
  const FileStamp stamp = FileStamp::of(file);
  if (holdsBytes(file, "-wal"))
    return openCopy(file);
  std::error_code impossible; // if the name is too long, there is no such file
  if (!isWriteAheadMode(file) && !fs::exists(fs::path(file) += "-wal", impossible))
    return openInPlace(file, "mode=ro", std::nullopt); // SQLite locks the file and notices a hot journal
  // To read a database in write-ahead mode SQLite creates files beside it, unless it is told that the file is
  // immutable.
  return holdsBytes(file, "-journal") ? openCopy(file) : openInPlace(file, "mode=ro&immutable=1", stamp);
}

} // namespace LagomareQuery
