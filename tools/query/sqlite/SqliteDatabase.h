#pragma once

#include "tools/query/Database.h"

namespace LagomareQuery {

/// Opens a SQLite file read-only and leaves nothing beside it, in write-ahead mode neither. Changes that still stand in
/// a -wal file or a hot journal are read from a private copy. Throws QueryError.
[[nodiscard]] Database openSqliteDatabase(const std::filesystem::path& given);

} // namespace LagomareQuery
