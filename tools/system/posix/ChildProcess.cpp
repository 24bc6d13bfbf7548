#include "tools/system/ChildProcess.h"

#include "tools/system/Failure.h"
#include "tools/system/Interruption.h"
#include "tools/system/posix/Descendants.h"
#include "tools/system/posix/Pipe.h"
#include "tools/system/posix/WakeUp.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#ifdef __linux__
#include <sys/prctl.h>
#endif
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace LagomareTools {

namespace {

constexpr std::size_t longestComplaint = 64 * 1024;

/// All pipes of a child; the ends that nobody took over are closed.
struct Pipes {
  Pipe input;
  Pipe output;
  Pipe errors;
  Pipe start; ///< tells the error number of a start that failed

  ~Pipes() {
    for (Pipe* pipe : {&input, &output, &errors, &start}) {
      closeDescriptor(pipe->reader);
      closeDescriptor(pipe->writer);
    }
  }
};

/// A child's end wakes this process; it must not be ignored either, or nobody could wait for it.
void listenToChildren() {
  static_cast<void>(WakeUp::descriptor());
  struct sigaction action {};
  action.sa_handler = [](int) { WakeUp::send(); };
  action.sa_flags = SA_RESTART | SA_NOCLDSTOP;
  ::sigaction(SIGCHLD, &action, nullptr);
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGCHLD);
  ::sigprocmask(SIG_UNBLOCK, &signals, nullptr); // whoever started this program may have blocked it
}

/// Puts a blocking descriptor, or else /dev/null, in the place of a standard stream.
void redirect(int standard, int descriptor) {
  if (descriptor < 0)
    descriptor = ::open("/dev/null", O_RDWR | O_CLOEXEC);
  else
    ::fcntl(descriptor, F_SETFL, 0);
  ::dup2(descriptor, standard);
}

void resetSignals() {
  for (const int signal : {SIGINT, SIGQUIT, SIGHUP, SIGTERM, SIGPIPE, SIGXFSZ, SIGCHLD})
    static_cast<void>(std::signal(signal, SIG_DFL));
  sigset_t none;
  sigemptyset(&none);
  ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

/// Turns this new process into the program. It is a group of its own, out of reach of a terminal's Ctrl-C.
[[noreturn]] void become(const ChildCall& call, char* const* arguments, const Pipes& pipes, pid_t parent) {
  ::setpgid(0, 0);
#ifdef __linux__
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
#endif
  redirect(STDIN_FILENO, pipes.input.reader);
  redirect(STDOUT_FILENO, pipes.output.writer);
  redirect(STDERR_FILENO, pipes.errors.writer);
  resetSignals();
  const bool isReady = ::chdir(call.directory.c_str()) == 0 && ::setenv("TMPDIR", call.directory.c_str(), 1) == 0;
  if (isReady && ::getppid() == parent)
    ::execvp(call.executable.c_str(), arguments); // which also starts a script without an interpreter's line
  const int error = errno;
  static_cast<void>(::write(pipes.start.writer, &error, sizeof error) < 0);
  ::_exit(EXIT_FAILURE);
}

/// Waits for the start; 0 where it succeeded.
int startError(Pipe& start) {
  closeDescriptor(start.writer);
  ::fcntl(start.reader, F_SETFL, 0);
  int error = 0;
  while (::read(start.reader, &error, sizeof error) < 0 && errno == EINTR) {
  }
  return error;
}

std::vector<char*> pointersTo(const std::string& executable, const std::vector<std::string>& words) {
  std::vector<char*> pointers{const_cast<char*>(executable.c_str())};
  for (const std::string& word : words)
    pointers.push_back(const_cast<char*>(word.c_str()));
  pointers.push_back(nullptr);
  return pointers;
}

} // namespace

struct ChildProcess::State {
  pid_t process = -1; ///< -1 when it has ended
  int input = -1;     ///< this program's ends of the pipes, -1 where there is none
  int output = -1;
  int errors = -1;
  std::string complaint;
  ChildEnd ended;

  ~State();
  void start(const ChildCall& call);
  void await(int descriptor, short events);
  bool readComplaint();
  void end() noexcept;
};

ChildProcess::State::~State() {
  end();
  for (int* descriptor : {&input, &output, &errors})
    closeDescriptor(*descriptor);
}

void ChildProcess::State::start(const ChildCall& call) {
  Pipes pipes;
  if (call.hasPipes) {
    pipes.input = makePipe();
    pipes.output = makePipe();
  }
  pipes.errors = makePipe();
  pipes.start = makePipe();
  const std::string name = call.executable.string();
  const std::vector<char*> arguments = pointersTo(name, call.words);
  const pid_t parent = ::getpid();
  process = ::fork();
  if (process == 0)
    become(call, arguments.data(), pipes, parent);
  Descendants::adopt(process);
  const int error = process < 0 ? errno : startError(pipes.start);
  if (error != 0)
    throw Failure("cannot start " + name + ": " + systemText(error));
  input = std::exchange(pipes.input.writer, -1);
  output = std::exchange(pipes.output.reader, -1);
  errors = std::exchange(pipes.errors.reader, -1);
}

/// Waits for a descriptor, for the end of a child or for the user, and reads what the child complains of meanwhile.
void ChildProcess::State::await(int descriptor, short events) {
  std::array<pollfd, 3> awaited{{{WakeUp::descriptor(), POLLIN, 0}, {errors, POLLIN, 0}, {descriptor, events, 0}}};
  if (::poll(awaited.data(), awaited.size(), -1) <= 0)
    return;
  if (awaited[0].revents != 0)
    WakeUp::clear();
  if (awaited[1].revents != 0)
    static_cast<void>(readComplaint());
}

/// Reads one block. False if there is none, or no more is wanted.
bool ChildProcess::State::readComplaint() {
  std::array<char, 4096> block{};
  const ssize_t got = errors < 0 ? -1 : ::read(errors, block.data(), block.size());
  if (got == 0)
    closeDescriptor(errors);
  if (got <= 0)
    return false;
  complaint.append(block.data(), std::min(static_cast<std::size_t>(got), longestComplaint - complaint.size()));
  return complaint.size() < longestComplaint;
}

/// Its group first: until the child has been waited for, no other group can have this number.
void ChildProcess::State::end() noexcept {
  if (process < 0)
    return;
  ::kill(-process, SIGKILL);
  int status = 0;
  while (::waitpid(process, &status, 0) < 0 && errno == EINTR) {
  }
  if (WIFEXITED(status))
    ended.exitCode = WEXITSTATUS(status);
  Descendants::forget(process);
  Descendants::end();
  process = -1;
}

ChildProcess::ChildProcess(const ChildCall& call) : state_(std::make_unique<State>()) {
  listenToChildren();
  Descendants::watch();
  state_->start(call);
}

ChildProcess::~ChildProcess() = default;

void ChildProcess::write(std::string_view text) {
  while (!text.empty()) {
    Interruption::throwIfRequested();
    const ssize_t written = ::write(state_->input, text.data(), text.size());
    if (written >= 0)
      text.remove_prefix(static_cast<std::size_t>(written));
    else if (errno == EAGAIN)
      state_->await(state_->input, POLLOUT);
    else if (errno != EINTR)
      return;
  }
}

std::size_t ChildProcess::read(char* buffer, std::size_t size) {
  for (;;) {
    Interruption::throwIfRequested();
    const ssize_t got = ::read(state_->output, buffer, size);
    if (got >= 0)
      return static_cast<std::size_t>(got);
    if (errno == EAGAIN)
      state_->await(state_->output, POLLIN);
    else if (errno != EINTR)
      return 0;
  }
}

ChildEnd ChildProcess::wait() {
  siginfo_t ended{};
  while (state_->process >= 0 &&
         ::waitid(P_PID, static_cast<id_t>(state_->process), &ended, WEXITED | WNOWAIT | WNOHANG) == 0 &&
         ended.si_pid == 0) {
    Interruption::throwIfRequested();
    state_->await(-1, 0);
  }
  state_->end();
  while (state_->readComplaint()) {
  }
  return state_->ended;
}

const std::string& ChildProcess::complaint() const { return state_->complaint; }

} // namespace LagomareTools
