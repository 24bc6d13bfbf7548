#pragma once

#include "tools/query/Database.h"

namespace LagomareQuery {

/// Opens an Access file as a database in memory whose tables read the file's. Throws QueryError.
[[nodiscard]] Database openAccessDatabase(const std::filesystem::path& file);

} // namespace LagomareQuery
