#pragma once

#include <string>
#include <vector>

namespace LagomareQuery {

/// lagomare-query as a whole: answers the query that the call's words (without the program's name) ask for, into
/// query-result.txt in the working directory. Returns the exit code.
[[nodiscard]] int runProgram(const std::vector<std::string>& words);

} // namespace LagomareQuery
