#pragma once

#include "tools/query/Database.h"

#include <map>
#include <string>
#include <vector>

namespace LagomareFuzz {

/// The rows of each table as lines of an answer, sorted, by a query that names the table's columns.
using Tables = std::map<std::string, std::vector<std::string>>;

/// The tables of a sound file.
[[nodiscard]] Tables tablesOf(const std::string& file);

/// Asks for each table of a file in which so many places are damaged. There must be an error or as many rows as in the
/// sound file, and no row of it twice in the place of another: a change in one place changes one cell of a row. Returns
/// what does not hold, or nothing.
[[nodiscard]] std::string missingIn(const std::string& file, const Tables& sound, std::size_t changes);

} // namespace LagomareFuzz
