#include "tools/project/QueryLauncher.h"

#include "access/LagomareProjectManager.h"
#include "tools/system/Failure.h"
#include "tools/system/ReadFile.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#ifdef __linux__
#include <sys/prctl.h>
#endif
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace LagomareTools {

namespace {

namespace fs = std::filesystem;

// The files of the private directory.
constexpr const char* launcherName = "query-launcher";
constexpr const char* executableLink = "query-executable"; ///< its target is the executable's path
constexpr const char* groupFile = "query-group";           ///< the process group, while a query runs
constexpr const char* launchesFile = "query-launches"; ///< a byte for the beginning of each query and one for its end
constexpr const char* complaintFile = "query-complaint";
constexpr const char* fullDiskFile = "query-full-disk"; ///< an error line written while there was room

constexpr int couldNotStart = 127;

/// Executables tell databases apart by their ending; a plain one is kept.
std::string plainEnding(const fs::path& database) {
  const std::string ending = database.extension().string();
  const bool isPlain =
      ending.size() > 1 && ending.size() <= 16 && std::all_of(ending.begin() + 1, ending.end(), [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
      });
  return isPlain ? ending : "";
}

void redirect(int descriptor, const char* file, int flags) {
  const int opened = ::open(file, flags, 0600);
  if (opened >= 0 && opened != descriptor) {
    ::dup2(opened, descriptor);
    ::close(opened);
  }
}

/// False, with errno, where it cannot.
bool writeFile(const std::string& name, const std::string& text) {
  std::error_code error;
  fs::remove(name, error); // whatever a query made of it
  errno = 0;
  std::ofstream file(name, std::ios::binary);
  file << text;
  file.close();
  return !file.fail();
}

/// Makes this process a group of its own, out of reach of a terminal's Ctrl-C, and finds the executable's path. The
/// group is on file before the link is read: whoever takes the link away first and then reads the group knows of every
/// query that can still start.
std::string joinOwnGroup() {
  ::setpgid(0, 0);
  std::error_code error;
  if (!writeFile(groupFile, std::to_string(::getpid())))
    return "";
  return fs::read_symlink(executableLink, error).string();
}

/// Turns this process into the executable, as a shell would start it: also a script without an interpreter's line.
[[noreturn]] void become(std::vector<char*> words) {
#ifdef __linux__
  ::prctl(PR_SET_PDEATHSIG, SIGKILL); // a query whose launcher is killed must not write on
#endif
  redirect(STDIN_FILENO, "/dev/null", O_RDONLY);
  redirect(STDOUT_FILENO, "/dev/null", O_WRONLY);
  redirect(STDERR_FILENO, "/dev/null", O_WRONLY); // where the file cannot be made
  redirect(STDERR_FILENO, complaintFile, O_WRONLY | O_CREAT);
  std::error_code error;
  const fs::path here = fs::current_path(error);
  if (!error)
    ::setenv("TMPDIR", here.c_str(), 1); // what a query leaves there is removed with the rest
  std::string executable = joinOwnGroup();
  if (executable.empty())
    ::_exit(couldNotStart);
  words.front() = executable.data();
  words.push_back(nullptr);
  sigset_t none;
  sigemptyset(&none);
  ::sigprocmask(SIG_SETMASK, &none, nullptr);
  for (const int signal : {SIGINT, SIGQUIT, SIGHUP, SIGTERM, SIGPIPE, SIGXFSZ})
    static_cast<void>(std::signal(signal, SIG_DFL));
  ::execvp(executable.c_str(), words.data());
  const std::string complaint = "it cannot be started: " + systemText(errno) + "\n";
  static_cast<void>(::write(STDERR_FILENO, complaint.data(), complaint.size()) < 0);
  ::_exit(couldNotStart);
}

/// Whether a child process came to an end of its own; one that a signal ended leaves a complaint. What it started and
/// left running ends too: it could still write into the next answer. Until the child is waited for, its group's number
/// is nobody else's.
bool waitFor(pid_t child) {
  siginfo_t ended{};
  while (::waitid(P_PID, static_cast<id_t>(child), &ended, WEXITED | WNOWAIT) < 0 && errno == EINTR) {
  }
  ::kill(-child, SIGKILL);
  std::error_code error;
  fs::remove(groupFile, error);
  int status = 0;
  while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  if (WIFSIGNALED(status))
    std::ofstream(complaintFile, std::ios::app) << "it was ended by signal " << WTERMSIG(status) << '\n';
  return WIFEXITED(status);
}

std::string errorLine(const std::string& reason) { return "error: " + reason + " .\n"; }

bool countLaunch() { return std::ofstream(launchesFile, std::ios::app).put('.').flush().good(); }

/// On a full disk an error line takes the answer's place without a byte being written.
bool forbidOldAnswer() {
  const auto& answer = LagomareProjectManager::fileResultQuery;
  std::error_code error;
  fs::remove(complaintFile, error);
  if (writeFile(answer, errorLine(noAnswer)) && countLaunch())
    return true;
  fs::rename(fullDiskFile, answer, error);
  return false;
}

} // namespace

const char* const noAnswer = "the query executable did not answer";

PlainNames installLauncher(const fs::path& program, const fs::path& executable, const fs::path& database) {
  const std::string databaseName = "lagomare-project" + plainEnding(database);
  std::error_code error;
  fs::create_symlink(program, launcherName, error);
  if (!error)
    fs::create_symlink(executable, executableLink, error);
  if (!error)
    fs::create_symlink(database, databaseName, error);
  if (error || !writeFile(fullDiskFile, errorLine("the disk of the working directory is full")))
    throw Failure("cannot fill the working directory " + fs::current_path().string() + ": " +
                  (error ? error.message() : systemText(errno)));
  return {std::string("./") + launcherName, databaseName};
}

bool isLauncher(const std::string& calledAs) { return calledAs == std::string("./") + launcherName; }

void launchQuery(char** arguments) {
  std::vector<char*> words;
  for (; *arguments != nullptr; ++arguments)
    words.push_back(*arguments);
  if (!forbidOldAnswer())
    return;
  const pid_t child = ::fork();
  if (child == 0)
    become(std::move(words));
  if (child < 0)
    static_cast<void>(writeFile(complaintFile, "it cannot be started: " + systemText(errno) + '\n'));
  const bool isEnded = child > 0 && waitFor(child);
  std::error_code error;
  // An executable may clear an old answer away, put there what could not be read to its end, or die half-way.
  if (!isEnded || !fs::is_regular_file(LagomareProjectManager::fileResultQuery, error))
    static_cast<void>(writeFile(LagomareProjectManager::fileResultQuery, errorLine(noAnswer)));
  static_cast<void>(countLaunch());
}

void stopQuery(const fs::path& directory) {
  std::error_code error;
  fs::remove(directory / executableLink, error);
  const long group = std::strtol(readFile(directory / groupFile).c_str(), nullptr, 10);
  if (group > 1)
    ::kill(static_cast<pid_t>(-group), SIGKILL);
}

std::size_t numOfLaunches() { return readFile(launchesFile).size() / 2; }

std::string lastQueryComplaint() {
  std::string text = readFile(complaintFile);
  const std::size_t end = text.find_last_not_of(" \t\r\n");
  if (end == std::string::npos)
    return "";
  text.resize(end + 1);
  return text.substr(text.find_last_of("\r\n") + 1);
}

} // namespace LagomareTools
