#pragma once

#include <exception>

namespace LagomareTools {

/// Ends work that the user asked to stop.
class Interrupted : public std::exception {
public:
  [[nodiscard]] const char* what() const noexcept override { return "cancelled"; }
};

/// Listens to Ctrl-C and to whatever else asks the program to stop, for as long as this object lives. One at a time.
///
/// The first request is only noted: what waits for a process or writes a file then throws Interrupted. Another one, a
/// second later or more, ends the program at once with exitCode, and can leave temporary files. Requests that the
/// program was started to ignore stay ignored.
class Interruption {
public:
  Interruption();
  ~Interruption();
  Interruption(const Interruption&) = delete;
  Interruption& operator=(const Interruption&) = delete;

  [[nodiscard]] static bool isRequested() noexcept;
  /// Throws Interrupted if the program was asked to stop.
  static void throwIfRequested() {
    if (isRequested())
      throw Interrupted();
  }

  static constexpr int exitCode = 130;
};

} // namespace LagomareTools
