#include "tools/project/Inputs.h"

#include "tools/system/Failure.h"
#include "tools/system/ProgramPath.h"

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace LagomareTools {

namespace {

namespace fs = std::filesystem;

constexpr const char* bundledExecutable = "lagomare-query";

/// What keeps a file from being read or started; empty where nothing does.
std::string obstacle(const fs::path& file, int access) {
  struct stat status {};
  if (::stat(file.c_str(), &status) != 0)
    return systemText(errno);
  if (S_ISDIR(status.st_mode))
    return "it is a folder; name the file itself";
  if (!S_ISREG(status.st_mode))
    return "it is no ordinary file";
  return ::access(file.c_str(), access) == 0 ? "" : systemText(errno);
}

fs::path absolute(const std::string& name) {
  std::error_code error;
  fs::path path = fs::absolute(name, error);
  if (error)
    throw Failure("cannot find the current folder: " + error.message() + "; start in another one");
  return path;
}

} // namespace

Inputs findInputs(const ProjectOptions& options, const std::string& calledAs) {
  Inputs inputs{
      options.project, absolute(options.project), {}, options.queryExecutable.has_value(), programPath(calledAs)};
  const std::string fault = obstacle(inputs.project, R_OK);
  if (!fault.empty())
    throw Failure("cannot read the project " + options.project + ": " + fault);
  inputs.project = fs::canonical(inputs.project);
  inputs.executable =
      inputs.isOwnExecutable ? absolute(*options.queryExecutable) : inputs.program.parent_path() / bundledExecutable;
  const std::string executableFault = obstacle(inputs.executable, X_OK);
  if (!executableFault.empty())
    throw Failure(
        "cannot start the query executable " + inputs.executable.string() + ": " + executableFault +
        (inputs.isOwnExecutable ? "" : "; install lagomare-query there, or name one with --query-executable"));
  return inputs;
}

} // namespace LagomareTools
