#pragma once

#include <string>
#include <vector>

namespace LagomareTools {

/// The usage error for words of a call that no option and no command takes, with what was probably meant. `words` stand
/// in the order of the call and are not empty, `known` are the options or the commands that could stand there.
[[nodiscard]] std::string unexpectedWords(const std::vector<std::string>& words, const std::vector<std::string>& known);

/// The same for words in the place of a command.
[[nodiscard]] std::string unknownCommand(const std::vector<std::string>& words, const std::vector<std::string>& known);

} // namespace LagomareTools
