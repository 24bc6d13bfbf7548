#include "tools/project/Complaint.h"

#include "tools/system/Text.h"

namespace LagomareTools {

std::string lastLineOf(const std::string& complaint) {
  const std::string prefix = "lagomare-query: error: ";
  const std::size_t end = complaint.find_last_not_of(" \t\r\n");
  if (end == std::string::npos)
    return "";
  std::string line = complaint.substr(0, end + 1);
  line.erase(0, line.find_last_of("\r\n") + 1);
  if (line.compare(0, prefix.size(), prefix) == 0)
    line.erase(0, prefix.size());
  return excerpt(line);
}

std::string textOf(const ChildEnd& end) {
  return end.exitCode ? "exit code " + std::to_string(*end.exitCode) : "it was killed";
}

} // namespace LagomareTools
