#include "tools/system/Failure.h"

#include "tools/system/Text.h"

#include <cstdio>
#include <system_error>

namespace LagomareTools {

std::string systemText(int error) { return std::generic_category().message(error); }

void printError(const std::string& message) {
  std::fputs(("lagomare: error: " + oneLine(message) + '\n').c_str(), stderr);
}

} // namespace LagomareTools
