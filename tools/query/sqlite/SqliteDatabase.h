#pragma once

#include "tools/query/Database.h"

#include <filesystem>

namespace LagomareQuery {

/// Opens a SQLite file for reading. Creates no files beside it, not even in write-ahead mode. If there are changes in a
/// -wal file or a hot journal, a private copy is opened. Throws QueryError.
[[nodiscard]] Database openSqliteDatabase(const std::filesystem::path& given);

} // namespace LagomareQuery
