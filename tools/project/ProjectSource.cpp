#include "tools/project/ProjectSource.h"

#include "tools/system/Text.h"

namespace LagomareTools {

std::unique_ptr<std::istream> ProjectSource::ask(const std::string& sql, bool flag) {
  lastSql_ = sql;
  auto answer = start(sql, flag);
  answer->exceptions(std::ios::badbit); // without it a stream takes its buffer's exception for the end
  return answer;
}

std::string ProjectSource::lastLineOf(const std::string& complaint) {
  const std::size_t end = complaint.find_last_not_of(" \t\r\n");
  if (end == std::string::npos)
    return "";
  const std::string text = complaint.substr(0, end + 1);
  return excerpt(text.substr(text.find_last_of("\r\n") + 1));
}

} // namespace LagomareTools
