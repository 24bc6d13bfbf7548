#include "tools/project/PrivateDirectory.h"

#include "tools/project/QueryLauncher.h"
#include "tools/system/Failure.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace LagomareTools {

namespace {

namespace fs = std::filesystem;

fs::path temporaryFolder() {
  const char* const variable = std::getenv("TMPDIR");
  return variable == nullptr || *variable == '\0' ? fs::path("/tmp") : fs::absolute(variable);
}

fs::path makeUnique(const fs::path& folder) {
  std::string name = (folder / "lagomare-XXXXXX").string();
  if (::mkdtemp(name.data()) == nullptr)
    throw Failure("cannot make a working directory in " + folder.string() + ": " + systemText(errno) +
                  "; let TMPDIR name a folder that you may write to");
  return name;
}

/// Ends a query that runs there first. A process that is ending may still add a file.
void removeDirectory(const fs::path& directory) {
  stopQuery(directory);
  std::error_code error;
  for (int attempt = 0; attempt < 10 && fs::exists(directory, error); ++attempt)
    fs::remove_all(directory, error);
}

} // namespace

PrivateDirectory::PrivateDirectory()
    : path_(makeUnique(temporaryFolder())), previous_(::open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
  leftover_.emplace([path = path_] { removeDirectory(path); });
  if (::chdir(path_.c_str()) != 0)
    throw Failure("cannot enter the working directory " + path_.string() + ": " + systemText(errno));
}

PrivateDirectory::~PrivateDirectory() {
  if (previous_ < 0)
    return;
  static_cast<void>(::fchdir(previous_) != 0); // the directory may be gone; nothing here depends on it
  ::close(previous_);
}

} // namespace LagomareTools
