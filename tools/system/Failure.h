#pragma once

#include <stdexcept>
#include <string>

namespace LagomareTools {

/// Ends the command as failed. The text says what, where and, if known, how to mend it.
class Failure : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// A usage error: what is wrong with the words of the call.
class UsageError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// The system's text for an error number, such as "Permission denied".
[[nodiscard]] std::string systemText(int error);

/// Prints "lagomare: error: " and the message on standard error, on one line whatever the message holds.
void printError(const std::string& message);
/// The same with "lagomare: warning: ".
void printWarning(const std::string& message);

} // namespace LagomareTools
