#include "tools/cli/Interruption.h"

#include "tools/cli/Leftover.h"

#include <csignal>
#include <fcntl.h>
#include <string_view>
#include <unistd.h>

namespace LagomareCli {

namespace {

sigset_t stopSignal() {
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGTERM);
  return signals;
}

void tellHowToEnd() {
  constexpr std::string_view note = "\nlagomare: stopping; once more ends at once\n";
  if (::isatty(STDERR_FILENO) != 0)
    static_cast<void>(::write(STDERR_FILENO, note.data(), note.size()) < 0);
}

} // namespace

Interruption::Interruption() {
  const sigset_t signals = stopSignal();
  ::pthread_sigmask(SIG_BLOCK, &signals, nullptr);
  thread_ = std::thread([this] { waitForSignals(); });
}

Interruption::~Interruption() {
  {
    const std::lock_guard lock(mutex_);
    isLeaving_ = true;
  }
  // The signal, blocked everywhere, only wakes the thread that waits for it.
  ::pthread_kill(thread_.native_handle(), SIGTERM); // NOLINT(bugprone-bad-signal-to-kill-thread,cert-pos44-c)
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
  const sigset_t signals = stopSignal();
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
    tellHowToEnd();
    stop_();
    return;
  }
  ::dup2(::open("/dev/null", O_WRONLY), STDERR_FILENO); // what the import still tries will fail; nobody wants to know
  Leftover::removeAllAtEnd();
  ::_exit(exitCode);
}

} // namespace LagomareCli
