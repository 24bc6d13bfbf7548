#include "tools/project/ProjectSource.h"

namespace LagomareTools {

std::unique_ptr<std::istream> ProjectSource::ask(const std::string& sql, bool flag) {
  lastSql_ = sql;
  auto answer = start(sql, flag);
  answer->exceptions(std::ios::badbit); // without it a stream takes its buffer's exception for the end
  return answer;
}

} // namespace LagomareTools
