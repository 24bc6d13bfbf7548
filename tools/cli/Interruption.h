#pragma once

#include <mutex>
#include <thread>

namespace LagomareCli {

/// Ctrl-C and its kin (SIGINT, SIGTERM, SIGHUP, SIGQUIT), for as long as this lives; one at a time, made before any
/// other thread.
///
/// The first one asks the import to stop, a second one ends the program at once, with exit code 130 and without a
/// leftover. The signals stay blocked in every thread and one thread waits for them: a blocked signal is kept even
/// while system() makes the process ignore SIGINT.
class Interruption {
public:
  Interruption();
  ~Interruption();
  Interruption(const Interruption&) = delete;
  Interruption& operator=(const Interruption&) = delete;

  [[nodiscard]] bool isRequested() const;

  /// The import is over: from now on the first signal ends the program at once. False where one has asked to stop.
  [[nodiscard]] bool endImport();

  /// From now on signals mean nothing. Where one is ending the program, this never returns.
  void endAll();

  static constexpr int exitCode = 130;

private:
  enum class State { importing, stopping, writing, over };

  void waitForSignals();
  void handleSignal();

  mutable std::mutex mutex_;
  State state_ = State::importing;
  bool isLeaving_ = false;
  std::thread thread_;
};

} // namespace LagomareCli
