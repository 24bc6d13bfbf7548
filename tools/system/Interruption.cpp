#include "tools/system/Interruption.h"

#include "tools/system/Failure.h"
#include "tools/system/Leftover.h"
#include "tools/system/Supervisor.h"

#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <string_view>
#include <system_error>
#include <unistd.h>

namespace LagomareTools {

namespace {

sigset_t awaited() {
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, stopSignal);
  return signals;
}

void tellHowToEnd() {
  constexpr std::string_view note = "\nlagomare: stopping; once more ends at once\n";
  pollfd terminal{STDERR_FILENO, POLLOUT, 0};
  if (::isatty(STDERR_FILENO) != 0 && ::poll(&terminal, 1, 0) == 1) // one that is stopped would stop the stopping
    static_cast<void>(::write(STDERR_FILENO, note.data(), note.size()) < 0);
}

} // namespace

Interruption::Interruption() {
  const sigset_t signals = awaited();
  ::pthread_sigmask(SIG_BLOCK, &signals, nullptr);
  try {
    thread_ = std::thread([this] { waitForSignals(); });
  } catch (const std::system_error& error) {
    throw Failure(std::string("cannot start a thread: ") + error.what());
  }
}

Interruption::~Interruption() {
  {
    const std::lock_guard lock(mutex_);
    isLeaving_ = true;
  }
  ::pthread_kill(thread_.native_handle(), stopSignal);
  thread_.join();
}

bool Interruption::isRequested() const {
  const std::lock_guard lock(mutex_);
  return state_ == State::stopping;
}

void Interruption::whenRequested(std::function<void()> stop) {
  const std::lock_guard lock(mutex_);
  stop_ = std::move(stop);
  if (state_ == State::stopping)
    stop_();
}

bool Interruption::endImport() {
  const std::lock_guard lock(mutex_);
  if (state_ == State::importing)
    state_ = State::writing;
  return state_ == State::writing;
}

void Interruption::endAll() {
  const std::lock_guard lock(mutex_);
  state_ = State::over;
}

void Interruption::waitForSignals() {
  const sigset_t signals = awaited();
  for (;;) {
    int signal = 0;
    if (::sigwait(&signals, &signal) != 0)
      continue;
    const std::lock_guard lock(mutex_);
    if (isLeaving_)
      return;
    handleSignal();
  }
}

/// Called with the state locked, so that nothing changes it while the program ends.
void Interruption::handleSignal() {
  if (state_ == State::over)
    return;
  if (state_ == State::importing) {
    state_ = State::stopping;
    stop_();
    tellHowToEnd();
    return;
  }
  ::dup2(::open("/dev/null", O_WRONLY), STDERR_FILENO); // what the import still tries will fail; nobody wants to know
  Leftover::removeAllAtEnd();
  ::_exit(exitCode);
}

} // namespace LagomareTools
