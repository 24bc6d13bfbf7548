#pragma once

#include "tools/query/FileStamp.h"
#include "tools/query/sqlite/Sqlite.h"
#include <optional>

namespace LagomareQuery {

/// A database opened for reading, whatever its kind, seen through SQLite.
struct Database {
  std::shared_ptr<const void> foundation; ///< what the connection stands on, if anything; goes after it
  Connection connection;
  std::filesystem::path file;
  /// Of `file`, from before its first byte was read; where SQLite locks it or it is a copy, none.
  std::optional<FileStamp> stamp;
};

/// Opens a SQLite or an Access file, told apart by their first bytes. Throws QueryError.
[[nodiscard]] Database openDatabase(const std::string& path);

/// Throws QueryError where a file that nothing locks was changed since it was opened.
void requireUnchanged(const Database& database);

/// What SQL may rely on, whatever the kind: FORMAT, and double quotes that never mean a text.
void prepareForQueries(sqlite3* connection);

} // namespace LagomareQuery
