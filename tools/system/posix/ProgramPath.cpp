#include "tools/system/ProgramPath.h"

#include "tools/system/Failure.h"

#include <filesystem>
#include <system_error>

namespace LagomareTools {

std::filesystem::path programPath() {
  std::error_code error;
  auto program = std::filesystem::canonical("/proc/self/exe", error);
  if (error)
    throw Failure("cannot find the program's own folder, where lagomare-query is: " + error.message() +
                  "; name a query executable with --query-executable");
  return program;
}

} // namespace LagomareTools
