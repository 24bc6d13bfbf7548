#pragma once

#include <functional>
#include <string>
#include <vector>

namespace LagomareBench {

/// Processor time of this process so far, in seconds, user and system; its children that ended included.
[[nodiscard]] double processorSeconds();

/// Processor seconds of one call. What it returns is destroyed behind the clock.
template <typename Call>
[[nodiscard]] double secondsOf(Call call) {
  const double begin = processorSeconds();
  [[maybe_unused]] const auto result = call();
  return processorSeconds() - begin;
}

/// Runs the work in a process of its own, whose heap is as good as new, and hands its result over. Throws
/// std::runtime_error with the child's message where the work throws.
[[nodiscard]] double inChild(const std::function<double()>& work);

/// What a command used, the processes that it started included.
struct Usage {
  double seconds; ///< of processor time
  double clockSeconds;
};

/// Runs a command, found by PATH, both its outputs written to a file. Throws std::runtime_error where it fails.
Usage runCommand(const std::vector<std::string>& command, const std::string& outputFile);

} // namespace LagomareBench
