#pragma once

#include <stdexcept>
#include <string>

namespace LagomareTools {

/// What ends the command as failed; the text says what, where and, if known, how to mend it.
class Failure : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// What is off in the words of the call.
class UsageError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// The system's text for an error number, such as "Permission denied".
[[nodiscard]] std::string systemText(int error);

/// Prints "lagomare: error: " and the message on standard error, on one line whatever the message holds.
void printError(const std::string& message);

} // namespace LagomareTools
