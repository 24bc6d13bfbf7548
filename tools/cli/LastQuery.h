#pragma once

#include "tools/cli/Inputs.h"

#include <cstdint>
#include <vector>

namespace LagomareCli {

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

/// The number, from 1, of the first row whose id reads so; 0 where there is none.
[[nodiscard]] std::size_t rowOfId(const std::string& idText);

/// Throws Failure where the launcher was not started for the last query, so that an old answer stands there; once the
/// channel is closed, where it was never started.
void requireLaunched();

} // namespace LagomareCli
