#include "support/Program.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <poll.h>
#include <sqlite3.h>
#include <stdexcept>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

RunningProgram::RunningProgram(const std::vector<std::string>& words) : process_(::fork()) {
  if (process_ != 0)
    return;
  for (const int signal : {SIGINT, SIGQUIT, SIGHUP}) // whatever the tests were started to ignore
    std::signal(signal, SIG_DFL);
  std::vector<char*> arguments;
  for (const std::string& word : words)
    arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  if (std::freopen("out.txt", "w", stdout) != nullptr && std::freopen("err.txt", "w", stderr) != nullptr)
    ::execv(arguments[0], arguments.data());
  ::_exit(126);
}

RunningProgram::~RunningProgram() {
  if (process_ > 0) {
    send(SIGKILL);
    static_cast<void>(wait());
  }
}

void RunningProgram::send(int signal) const { ::kill(process_, signal); }

Ending RunningProgram::wait() {
  int status = 0;
  ::waitpid(process_, &status, 0);
  process_ = 0;
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, readFile("out.txt"), readFile("err.txt")};
}

LifeLine::LifeLine(const std::string& name)
    : descriptor_(::mkfifo(name.c_str(), 0600) == 0 ? ::open(name.c_str(), O_RDONLY | O_NONBLOCK) : -1) {}

LifeLine::~LifeLine() { ::close(descriptor_); }

bool LifeLine::awaitEnd() const {
  pollfd ended{descriptor_, POLLIN, 0};
  return ::poll(&ended, 1, 60000) == 1 && (ended.revents & POLLHUP) != 0;
}

Ending run(const std::vector<std::string>& words) { return RunningProgram(words).wait(); }

std::string readFile(const std::string& name) {
  std::ifstream file(name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void writeFile(const std::string& name, const std::string& text) { std::ofstream(name, std::ios::binary) << text; }

bool awaitFile(const std::string& name) {
  for (int attempt = 0; attempt < 6000 && !std::filesystem::exists(name); ++attempt)
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  return std::filesystem::exists(name);
}

void runSql(const std::string& database, const std::string& sql) {
  sqlite3* connection = nullptr;
  sqlite3_open(database.c_str(), &connection);
  const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> owner(connection, sqlite3_close);
  if (sqlite3_exec(connection, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
    throw std::runtime_error(sqlite3_errmsg(connection));
}
