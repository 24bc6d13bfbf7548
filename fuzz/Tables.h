#pragma once

#include "tools/query/Database.h"

#include <map>
#include <string>

namespace LagomareFuzz {

/// How many rows each table has, by a query that names its columns.
using Tables = std::map<std::string, std::size_t>;

/// The tables of a sound file.
[[nodiscard]] Tables tablesOf(const LagomareQuery::Database& database);

/// Asks for each table of a file that may be damaged: there must be an error or as many rows as told.
void requireErrorOrAllRows(const std::string& file, const Tables& tables);

} // namespace LagomareFuzz
