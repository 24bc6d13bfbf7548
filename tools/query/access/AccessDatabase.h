#pragma once

#include "tools/query/Database.h"

#include <filesystem>

namespace LagomareQuery {

/// Opens an Access file: a SQLite database in memory, with virtual tables that read the file. Throws QueryError.
[[nodiscard]] Database openAccessDatabase(const std::filesystem::path& file);

} // namespace LagomareQuery
