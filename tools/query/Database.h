#pragma once

#include "tools/query/sqlite/Sqlite.h"
#include "tools/system/FileStamp.h"
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace LagomareQuery {

/// A database of either kind, opened for reading. Queries go to the SQLite connection.
struct Database {
  std::shared_ptr<const void> foundation; ///< what the connection reads from, if not from `file` itself; outlives it
  Connection connection;
  std::filesystem::path file;
  /// The stamp of `file`, taken before its first byte was read or, if SQLite locks the file, after it was locked. Empty
  /// if a copy is read.
  std::optional<LagomareTools::FileStamp> stamp;
  /// True for a SQLite file until it is checked. An Access file is checked while it is read.
  bool needsCheck = false;
};

/// Opens a SQLite or an Access file; their first bytes tell which. A SQLite file is seen in one state, by one read
/// transaction, until the connection is closed. Throws QueryError.
[[nodiscard]] Database openDatabase(const std::string& path);

/// Checks the whole database, so that single tables need not be checked before each query. Throws QueryError if it is
/// damaged.
void requireSound(Database& database);

/// Throws DatabaseChanged if the file was changed or replaced since it was opened.
void requireUnchanged(const Database& database);

/// Sets up a connection, for both kinds of database alike: adds FORMAT, takes double quotes for names only, never for
/// text, and forbids indexes that SQLite would build for a single query.
void prepareForQueries(sqlite3* connection);

} // namespace LagomareQuery
