#include "bench/Child.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace LagomareBench {

namespace {

double seconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

double seconds(const rusage& usage) { return seconds(usage.ru_utime) + seconds(usage.ru_stime); }

template <typename Result>
Result checked(Result result, const char* call) {
  if (result < 0)
    throw std::system_error(errno, std::generic_category(), call);
  return result;
}

std::string readAll(int descriptor) {
  std::string text;
  char buffer[4096];
  for (ssize_t got = 0; (got = checked(read(descriptor, buffer, sizeof buffer), "read")) > 0;)
    text.append(buffer, static_cast<std::size_t>(got));
  return text;
}

/// The child's side: the result, or a message behind a blank, goes into the pipe.
[[noreturn]] void answer(int descriptor, const std::function<double()>& work) {
  std::string text;
  try {
    char number[32];
    text.assign(number, static_cast<std::size_t>(std::snprintf(number, sizeof number, "%.17g", work())));
  } catch (const std::exception& error) {
    text = std::string(" ") + error.what();
  }
  const bool written = write(descriptor, text.data(), text.size()) == static_cast<ssize_t>(text.size());
  _exit(written ? 0 : 1);
}

[[noreturn]] void execute(const std::vector<std::string>& command, const std::string& outputFile) {
  std::vector<char*> words;
  for (const auto& word : command)
    words.push_back(const_cast<char*>(word.c_str()));
  words.push_back(nullptr);
  const int output = open(outputFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  if (output >= 0 && dup2(output, STDOUT_FILENO) >= 0 && dup2(output, STDERR_FILENO) >= 0)
    execvp(words.front(), words.data());
  _exit(127);
}

} // namespace

double processorSeconds() {
  timespec own{};
  rusage children{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &own);
  getrusage(RUSAGE_CHILDREN, &children);
  return static_cast<double>(own.tv_sec) + static_cast<double>(own.tv_nsec) * 1e-9 + seconds(children);
}

double inChild(const std::function<double()>& work) {
  int ends[2];
  checked(pipe(ends), "pipe");
  const pid_t child = checked(fork(), "fork");
  if (child == 0)
    answer(ends[1], work);
  close(ends[1]);
  const std::string text = readAll(ends[0]);
  close(ends[0]);
  checked(waitpid(child, nullptr, 0), "waitpid");
  if (text.empty() || text.front() == ' ')
    throw std::runtime_error(text.empty() ? "a child process died" : text.substr(1));
  return std::stod(text);
}

Usage runCommand(const std::vector<std::string>& command, const std::string& outputFile) {
  const auto begin = std::chrono::steady_clock::now();
  const pid_t child = checked(fork(), "fork");
  if (child == 0)
    execute(command, outputFile);
  int status = 0;
  rusage usage{};
  checked(wait4(child, &status, 0, &usage), "wait4");
  if (status != 0)
    throw std::runtime_error(command.front() + " failed; its output stands in " + outputFile);
  const std::chrono::duration<double> clock = std::chrono::steady_clock::now() - begin;
  return {seconds(usage), clock.count()};
}

} // namespace LagomareBench
