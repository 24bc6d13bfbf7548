#include "tools/system/Interruption.h"

#include <array>
#include <atomic>
#include <csignal>
#include <ctime>
#include <unistd.h>

namespace LagomareTools {

namespace {

constexpr std::array<int, 4> stopSignals{SIGINT, SIGQUIT, SIGHUP, SIGTERM};

static_assert(std::atomic<std::time_t>::is_always_lock_free, "a signal handler may use it");
std::atomic<std::time_t> firstRequest{0}; ///< 0: none
std::array<struct sigaction, stopSignals.size()> previousActions{};

std::time_t secondsNow() {
  timespec now{};
  ::clock_gettime(CLOCK_MONOTONIC, &now);
  return now.tv_sec + 1; // never 0
}

/// A caller may send one request twice: to the program and to its whole group.
void handleSignal(int /*signal*/) {
  constexpr std::time_t shortestPause = 2; // more than one second, as both times are rounded down
  std::time_t first = 0;
  if (!firstRequest.compare_exchange_strong(first, secondsNow()) && secondsNow() - first >= shortestPause)
    ::_exit(Interruption::exitCode);
}

} // namespace

Interruption::Interruption() {
  firstRequest = 0;
  struct sigaction action {};
  action.sa_handler = handleSignal; // without SA_RESTART: what blocks must end
  sigfillset(&action.sa_mask);
  sigset_t heard;
  sigemptyset(&heard);
  for (std::size_t index = 0; index < stopSignals.size(); ++index) {
    ::sigaction(stopSignals[index], nullptr, &previousActions[index]);
    if (previousActions[index].sa_handler != SIG_IGN)
      ::sigaction(stopSignals[index], &action, nullptr);
    sigaddset(&heard, stopSignals[index]);
  }
  ::sigprocmask(SIG_UNBLOCK, &heard, nullptr); // whoever started this program may have blocked them
}

Interruption::~Interruption() {
  for (std::size_t index = 0; index < stopSignals.size(); ++index)
    ::sigaction(stopSignals[index], &previousActions[index], nullptr);
}

bool Interruption::isRequested() noexcept { return firstRequest != 0; }

} // namespace LagomareTools
