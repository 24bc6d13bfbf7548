#pragma once

#include "tools/project/Inputs.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace LagomareTools {

// What the channel left in the current directory: the script of the query that it sent last, and the answer.

struct LastQuery {
  std::string sql;                  ///< empty where none was sent
  std::string table;                ///< the one that it reads
  std::vector<std::string> columns; ///< their names, as far as they are known
};

[[nodiscard]] LastQuery lastQuery();

/// Why the query was not answered, on one line; empty where it was. `plainDatabase` is the name that the executable
/// knows the project by.
[[nodiscard]] std::string refusalOfLastQuery(const Inputs& inputs, const std::string& plainDatabase);

[[nodiscard]] std::string firstLineOfAnswer();

/// The number, from 1, of the first row whose field of that column, from 0, reads so: among the rows of an id, or among
/// all. 0 where there is none.
[[nodiscard]] std::size_t findRow(std::optional<std::uint32_t> id, std::size_t column, const std::string& text);

/// Throws Failure where the launcher did not run a query to its end, which an old answer or half of one has answered
/// then.
void requireLaunched();

} // namespace LagomareTools
