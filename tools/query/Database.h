#pragma once

#include "tools/query/sqlite/Sqlite.h"
#include "tools/system/FileStamp.h"
#include <filesystem>
#include <memory>
#include <optional>

namespace LagomareQuery {

/// A database opened for reading, whatever its kind, seen through SQLite.
struct Database {
  std::shared_ptr<const void> foundation; ///< what the connection stands on, if anything; goes after it
  Connection connection;
  std::filesystem::path file;
  /// Of `file`: from before its first byte was read or, where SQLite locks it, from then on; none where a copy is read.
  std::optional<LagomareTools::FileStamp> stamp;
  /// Tables must be checked before they are read; an Access file is checked while it is read.
  bool needsCheck = false;
};

/// Opens a SQLite or an Access file, told apart by their first bytes. Throws QueryError. A SQLite file is seen in one
/// state, that of one read transaction, for as long as the connection lives.
[[nodiscard]] Database openDatabase(const std::string& path);

/// Checks the whole database, so that its tables need not be checked any more. Throws QueryError where it is damaged.
void requireSound(Database& database);

/// Throws DatabaseChanged where the file was changed or replaced since it was opened.
void requireUnchanged(const Database& database);

/// What SQL may rely on, whatever the kind: FORMAT, double quotes that never mean a text, no index but the database's.
void prepareForQueries(sqlite3* connection);

} // namespace LagomareQuery
