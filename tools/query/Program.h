#pragma once

#include <string>
#include <vector>

namespace LagomareQuery {

/// Runs the program with the arguments of the call, without the program's name. Returns the exit code.
[[nodiscard]] int runProgram(const std::vector<std::string>& words);

} // namespace LagomareQuery
