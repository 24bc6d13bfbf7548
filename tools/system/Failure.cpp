#include "tools/system/Failure.h"

#include "tools/system/Text.h"

#include <cstdio>
#include <system_error>

namespace LagomareTools {

std::string systemText(int error) { return std::generic_category().message(error); }

namespace {

void print(const char* kind, const std::string& message) {
  std::fputs(("lagomare: " + std::string(kind) + ": " + oneLine(message) + '\n').c_str(), stderr);
}

} // namespace

void printError(const std::string& message) { print("error", message); }

void printWarning(const std::string& message) { print("warning", message); }

} // namespace LagomareTools
