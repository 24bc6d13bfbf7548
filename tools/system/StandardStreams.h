#pragma once

#include <exception>
#include <string_view>

namespace LagomareTools {

/// Nobody reads standard output any more. Ends the program silently, see endAsReaderHasGone().
class ReaderHasGone : public std::exception {
public:
  [[nodiscard]] const char* what() const noexcept override { return "standard output was closed by its reader"; }
};

/// Call it first in main. Streams that the caller closed are opened, so that no file takes their place, and a write
/// that fails is an error and not the end of the program.
void prepareStandardStreams();

/// Throws Failure, ReaderHasGone and Interrupted.
void writeToStandardOutput(std::string_view text);

/// Ends the program as other programs end whose reader goes away.
[[noreturn]] void endAsReaderHasGone();

/// Whether standard error is a terminal.
[[nodiscard]] bool isErrorATerminal();

} // namespace LagomareTools
