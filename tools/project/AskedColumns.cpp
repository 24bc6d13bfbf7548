#include "tools/project/AskedColumns.h"

#include <regex>

namespace LagomareTools {

std::string askedTable(const std::string& sql) {
  std::smatch found;
  return std::regex_search(sql, found, std::regex(" from (\\w+)")) ? found.str(1) : "";
}

std::string askedColumn(const std::string& sql, std::size_t index) {
  const std::string list = sql.substr(0, sql.find(" from "));
  const std::regex column("(?:FORMAT\\(|[ ,])(\\w+)(?:, '[^']*'\\))?(?=,|$)");
  std::sregex_iterator found(list.begin(), list.end(), column);
  for (std::size_t at = 0; at < index && found != std::sregex_iterator(); ++at)
    ++found;
  return found == std::sregex_iterator() ? "number " + std::to_string(index + 1) : found->str(1);
}

} // namespace LagomareTools
