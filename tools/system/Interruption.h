#pragma once

#include <functional>
#include <mutex>
#include <thread>

namespace LagomareTools {

/// What asks the program to stop (stopSignal, from the supervisor), for as long as this lives; one at a time,
/// made before any other thread. The first signal asks the import to stop, a second one ends the program at once, with
/// exit code 130 and without a leftover. The signal stays blocked in every thread and one thread waits for it.
class Interruption {
public:
  /// Throws Failure.
  Interruption();
  ~Interruption();
  Interruption(const Interruption&) = delete;
  Interruption& operator=(const Interruption&) = delete;

  [[nodiscard]] bool isRequested() const;

  /// What the first signal does besides: ends what the import waits for. Called on any thread.
  void whenRequested(std::function<void()> stop);

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
  std::function<void()> stop_ = [] {};
  std::thread thread_;
};

} // namespace LagomareTools
