#include "tools/system/ProgramPath.h"

#include "tools/system/Failure.h"

#include <cstdlib>
#include <string_view>
#include <unistd.h>

namespace LagomareTools {

namespace {

namespace fs = std::filesystem;

/// As the shell finds a program: a name with a slash is a path, another one stands in a folder of PATH.
fs::path findAsShell(const std::string& name) {
  if (name.find('/') != std::string::npos)
    return name;
  const char* const variable = std::getenv("PATH");
  std::string_view folders = variable == nullptr ? "" : variable;
  while (!folders.empty()) {
    const std::size_t length = folders.find(':');
    const fs::path candidate = fs::path(folders.substr(0, length)) / name;
    if (::access(candidate.c_str(), X_OK) == 0)
      return candidate;
    folders.remove_prefix(length == std::string_view::npos ? folders.size() : length + 1);
  }
  return name;
}

} // namespace

fs::path programPath(const std::string& calledAs) {
  std::error_code error;
  fs::path program = fs::canonical("/proc/self/exe", error);
  if (error)
    program = fs::canonical(findAsShell(calledAs), error);
  if (error)
    throw Failure("cannot find the program's own file, " + calledAs + ": " + error.message());
  return program;
}

} // namespace LagomareTools
