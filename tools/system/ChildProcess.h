#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace LagomareTools {

/// A program to start.
struct ChildCall {
  std::filesystem::path executable; ///< absolute
  std::vector<std::string> words;   ///< its arguments; no shell reads them
  std::filesystem::path directory;  ///< its working directory, and the one for its temporary files
  bool hasPipes = false;            ///< for write() and read(); without them it has no standard input and output
};

/// How a program ended.
struct ChildEnd {
  std::optional<int> exitCode; ///< none: it was killed
};

/// A program that this one started. It ends when this object goes, and so does all that it has started; also when this
/// program is killed. Waiting for it throws Interrupted when the user asks to stop. One thread at a time.
class ChildProcess {
public:
  /// Throws Failure if the program cannot be started.
  explicit ChildProcess(const ChildCall& call);
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  /// Writes to its standard input. What it does not take because it has ended is dropped.
  void write(std::string_view text);
  /// Reads from its standard output: waits for at least one byte. Returns how many there are; 0 at the end.
  [[nodiscard]] std::size_t read(char* buffer, std::size_t size);
  /// Waits until it ends by itself, and ends all that it has started.
  ChildEnd wait();
  /// The first 64 KB of what it has written to its standard error so far.
  [[nodiscard]] const std::string& complaint() const;

private:
  struct State;
  std::unique_ptr<State> state_;
};

} // namespace LagomareTools
