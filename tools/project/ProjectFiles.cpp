#include "tools/project/ProjectFiles.h"

#include "tools/system/Failure.h"
#include "tools/system/Files.h"
#include "tools/system/ProgramPath.h"

#include <cerrno>
#include <string>
#include <system_error>

namespace LagomareTools {

namespace {

namespace fs = std::filesystem;

/// Returns why the file cannot be read, or an empty string if it can.
std::string readingFault(const fs::path& file) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  if (error)
    return error.message();
  if (fs::is_directory(status))
    return "it is a folder; name the file itself";
  if (!fs::is_regular_file(status))
    return "it is no ordinary file";
  return openFile(file, "rb") != nullptr ? "" : systemText(errno);
}

fs::path absolute(const std::string& name) {
  std::error_code error;
  fs::path path = fs::absolute(fs::u8path(name), error);
  if (error)
    throw Failure("cannot find the current folder: " + error.message() + "; start in another one");
  return path;
}

fs::path bundledExecutable() {
  fs::path executable = programPath().parent_path() / "lagomare-query";
  std::error_code ignored;
  if (!fs::exists(executable, ignored))
    throw Failure("cannot find the query executable " + executable.u8string() +
                  "; install it there, or name another one with --query-executable");
  return executable;
}

} // namespace

ProjectFiles::ProjectFiles(const ProjectOptions& options) : project(absolute(options.project)) {
  if (const std::string fault = readingFault(project); !fault.empty())
    throw Failure("cannot read the project " + options.project + ": " + fault);
  project = fs::canonical(project);
  queryExecutable = options.queryExecutable ? absolute(*options.queryExecutable) : bundledExecutable();
}

} // namespace LagomareTools
