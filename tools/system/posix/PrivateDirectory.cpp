#include "tools/system/PrivateDirectory.h"

#include "tools/system/Failure.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

namespace LagomareTools {

namespace fs = std::filesystem;

PrivateDirectory::PrivateDirectory() {
  std::error_code error;
  const fs::path folder = fs::absolute(fs::temp_directory_path(error));
  std::string name = (folder / "lagomare-XXXXXX").string();
  if (error || ::mkdtemp(name.data()) == nullptr)
    throw Failure("cannot make a working directory in " + folder.string() + ": " +
                  (error ? error.message() : systemText(errno)) + "; set TMPDIR to a folder that you may write to");
  path_ = name;
}

PrivateDirectory::~PrivateDirectory() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

} // namespace LagomareTools
