#include "tools/system/Supervisor.h"

#include "tools/system/Failure.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>
#ifdef __linux__
#include <sys/prctl.h>
#endif

namespace LagomareTools {

namespace {

constexpr std::array<int, 3> terminalSignals{SIGINT, SIGQUIT, SIGHUP};
constexpr int failure = 1;

/// As a program is started by nohup, or by a script that is to go on alone.
bool isIgnored(int signal) {
  struct sigaction action {};
  return ::sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

/// What this process waits for; blocked from now on.
sigset_t blockSignals() {
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGTERM);
  sigaddset(&signals, SIGCHLD);
  for (const int signal : terminalSignals)
    if (!isIgnored(signal))
      sigaddset(&signals, signal);
  ::pthread_sigmask(SIG_BLOCK, &signals, nullptr);
  return signals;
}

/// What the supervisor hears the work ignores, and so do the shells that run the queries: they get it too where it is
/// sent to the whole group.
[[noreturn]] void become(const std::function<int()>& work) {
#ifdef __linux__
  ::prctl(PR_SET_PDEATHSIG, stopSignal);
#endif
  for (const int signal : {SIGINT, SIGQUIT, SIGHUP, SIGTERM})
    static_cast<void>(std::signal(signal, SIG_IGN));
  sigset_t heard;
  sigemptyset(&heard);
  sigaddset(&heard, stopSignal);
  ::pthread_sigmask(SIG_SETMASK, &heard, nullptr);
  std::exit(work());
}

} // namespace

int supervise(const std::function<int()>& work) {
  const sigset_t signals = blockSignals();
  const pid_t worker = ::fork();
  if (worker == 0)
    become(work);
  if (worker < 0) {
    printError("cannot start a process: " + systemText(errno));
    return failure;
  }
  int status = 0;
  pid_t ended = 0;
  while ((ended = ::waitpid(worker, &status, WNOHANG)) == 0) {
    int signal = 0;
    if (::sigwait(&signals, &signal) == 0 && signal != SIGCHLD)
      ::kill(worker, stopSignal);
  }
  if (ended == worker && WIFEXITED(status))
    return WEXITSTATUS(status);
  printError("ended by signal " + std::to_string(WTERMSIG(status)) +
             "; what it was writing is left in TMPDIR and beside the "
             "outputs");
  return failure;
}

} // namespace LagomareTools
