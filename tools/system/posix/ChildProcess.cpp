#include "tools/system/ChildProcess.h"

#include "tools/system/Failure.h"
#include "tools/system/Interruption.h"
#include "tools/system/posix/Descendants.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <poll.h>
#include <string>
#include <string_view>
#include <vector>
#ifdef __linux__
#include <sys/prctl.h>
#endif
#include <sys/wait.h>
#include <unistd.h>

namespace LagomareTools {

namespace {

constexpr std::size_t longestComplaint = 64 * 1024;

/// The ends of a pipe that this process holds; -1 where it does not.
struct Pipe {
  int reader = -1;
  int writer = -1;

  Pipe() = default;
  ~Pipe() {
    close(reader);
    close(writer);
  }
  Pipe(const Pipe&) = delete;
  Pipe& operator=(const Pipe&) = delete;

  /// The ends do not block, and other programs do not inherit them. Throws Failure.
  void open() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
      throw Failure("cannot make a pipe: " + systemText(errno));
    reader = ends[0];
    writer = ends[1];
  }
  static void close(int& end) {
    if (end >= 0)
      ::close(end);
    end = -1;
  }
};

/// Lets the child write ahead of this process, where the system permits it.
void enlarge(const Pipe& pipe) {
#ifdef F_SETPIPE_SZ
  constexpr int bytes = 1 << 20;
  static_cast<void>(::fcntl(pipe.writer, F_SETPIPE_SZ, bytes));
#endif
}

/// The end of a child interrupts a wait. It must not be ignored either, or nobody could learn of it.
void listenToChildren() {
  struct sigaction action {};
  action.sa_handler = [](int) {};
  action.sa_flags = SA_RESTART | SA_NOCLDSTOP;
  ::sigaction(SIGCHLD, &action, nullptr);
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGCHLD);
  ::sigprocmask(SIG_UNBLOCK, &signals, nullptr); // whoever started this program may have blocked it
}

/// Puts a descriptor, or else /dev/null, in the place of a standard stream.
void redirect(int standard, int descriptor) {
  if (descriptor < 0)
    descriptor = ::open("/dev/null", O_RDWR | O_CLOEXEC);
  else
    ::fcntl(descriptor, F_SETFL, 0); // it blocks, as programs expect
  ::dup2(descriptor, standard);
}

void resetSignals() {
  for (const int signal : {SIGINT, SIGQUIT, SIGHUP, SIGTERM, SIGPIPE, SIGXFSZ, SIGCHLD})
    static_cast<void>(std::signal(signal, SIG_DFL));
  sigset_t none;
  sigemptyset(&none);
  ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

/// Turns this new process into the program. It becomes a group of its own, out of reach of a terminal's Ctrl-C. Returns
/// if it cannot, with errno.
void become(const ChildCall& call, char* const* arguments, pid_t parent) {
  ::setpgid(0, 0);
#ifdef __linux__
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
#endif
  resetSignals();
  const bool isReady = ::chdir(call.directory.c_str()) == 0 && ::setenv("TMPDIR", call.directory.c_str(), 1) == 0;
  if (isReady && ::getppid() == parent)
    ::execvp(call.executable.c_str(), arguments); // which also starts a script without an interpreter's line
}

/// Waits until a new process has become its program. Returns 0, or the error number if it could not.
int startError(Pipe& start) {
  Pipe::close(start.writer);
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
  Pipe input;
  Pipe output;
  Pipe errors;
  std::string complaint;
  ChildEnd ended;

  ~State() { end(); }
  void start(const ChildCall& call);
  [[nodiscard]] bool hasEnded() const;
  void await(int descriptor, short events);
  bool readComplaint();
  void end() noexcept;
};

void ChildProcess::State::start(const ChildCall& call) {
  Pipe startPipe;
  for (Pipe* pipe : {&errors, &startPipe})
    pipe->open();
  if (call.hasPipes) {
    for (Pipe* pipe : {&input, &output})
      pipe->open();
    enlarge(output);
  }
  const std::string name = call.executable.string();
  const std::vector<char*> arguments = pointersTo(name, call.words);
  const pid_t parent = ::getpid();
  process = ::fork();
  if (process == 0) {
    redirect(STDIN_FILENO, input.reader);
    redirect(STDOUT_FILENO, output.writer);
    redirect(STDERR_FILENO, errors.writer);
    become(call, arguments.data(), parent);
    const int error = errno;
    static_cast<void>(::write(startPipe.writer, &error, sizeof error) < 0);
    ::_exit(EXIT_FAILURE);
  }
  for (int* end : {&input.reader, &output.writer, &errors.writer})
    Pipe::close(*end);
  Descendants::adopt(process);
  if (const int error = process < 0 ? errno : startError(startPipe); error != 0)
    throw Failure("cannot start " + name + ": " + systemText(error));
}

/// It can still be waited for.
bool ChildProcess::State::hasEnded() const {
  siginfo_t ending{};
  return process < 0 || ::waitid(P_PID, static_cast<id_t>(process), &ending, WEXITED | WNOWAIT | WNOHANG) != 0 ||
         ending.si_pid != 0;
}

/// Waits for a descriptor, or for the process where there is none; reads what it complains of meanwhile. Signals are
/// held back until ppoll() waits, so that none of them can come too early to end the wait. Throws Interrupted.
void ChildProcess::State::await(int descriptor, short events) {
  sigset_t all;
  sigset_t usual;
  sigfillset(&all);
  ::sigprocmask(SIG_BLOCK, &all, &usual);
  if (!Interruption::isRequested() && !(descriptor < 0 && hasEnded())) {
    std::array<pollfd, 2> awaited{{{errors.reader, POLLIN, 0}, {descriptor, events, 0}}};
    if (::ppoll(awaited.data(), awaited.size(), nullptr, &usual) > 0 && awaited[0].revents != 0)
      static_cast<void>(readComplaint());
  }
  ::sigprocmask(SIG_SETMASK, &usual, nullptr);
  Interruption::throwIfRequested();
}

/// Reads one block. False if there is none, or no more is wanted.
bool ChildProcess::State::readComplaint() {
  std::array<char, 4096> block{};
  const ssize_t got = errors.reader < 0 ? -1 : ::read(errors.reader, block.data(), block.size());
  if (got == 0)
    Pipe::close(errors.reader);
  if (got <= 0)
    return false;
  complaint.append(block.data(), std::min(static_cast<std::size_t>(got), longestComplaint - complaint.size()));
  return complaint.size() < longestComplaint;
}

/// Its group first: until the process has been waited for, no other group can have this number.
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
    const ssize_t written = ::write(state_->input.writer, text.data(), text.size());
    if (written >= 0)
      text.remove_prefix(static_cast<std::size_t>(written));
    else if (errno == EAGAIN)
      state_->await(state_->input.writer, POLLOUT);
    else if (errno != EINTR)
      return;
  }
}

std::size_t ChildProcess::read(char* buffer, std::size_t size) {
  for (;;) {
    Interruption::throwIfRequested();
    const ssize_t got = ::read(state_->output.reader, buffer, size);
    if (got >= 0)
      return static_cast<std::size_t>(got);
    if (errno == EAGAIN)
      state_->await(state_->output.reader, POLLIN);
    else if (errno != EINTR)
      return 0;
  }
}

ChildEnd ChildProcess::wait() {
  while (!state_->hasEnded())
    state_->await(-1, 0);
  state_->end();
  while (state_->readComplaint()) {
  }
  return state_->ended;
}

const std::string& ChildProcess::complaint() const { return state_->complaint; }

} // namespace LagomareTools
