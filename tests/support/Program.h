#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

/// How a program ended, and what it wrote.
struct Ending {
  int exitCode; ///< -1 where a signal ended it
  std::string out;
  std::string err;
};

/// A program that runs; its output goes to files in the current directory. Ended with this, if it still runs.
class RunningProgram {
public:
  explicit RunningProgram(const std::vector<std::string>& words);
  ~RunningProgram();
  RunningProgram(const RunningProgram&) = delete;
  RunningProgram& operator=(const RunningProgram&) = delete;

  void send(int signal) const;
  [[nodiscard]] Ending wait();

private:
  pid_t process_;
};

/// Tells, without a clock, when all processes have ended that write to a pipe.
class LifeLine {
public:
  /// Makes the pipe.
  explicit LifeLine(const std::string& name);
  ~LifeLine();
  LifeLine(const LifeLine&) = delete;
  LifeLine& operator=(const LifeLine&) = delete;

  /// Once somebody has opened the pipe: waits until nobody has it open. False where that does not come.
  [[nodiscard]] bool awaitEnd() const;

private:
  int descriptor_;
};

[[nodiscard]] Ending run(const std::vector<std::string>& words);

[[nodiscard]] std::string readFile(const std::string& name);
void writeFile(const std::string& name, const std::string& text);
/// Waits until a file exists; false where it does not appear.
[[nodiscard]] bool awaitFile(const std::string& name);
/// Makes or extends a SQLite database.
void runSql(const std::string& database, const std::string& sql);
