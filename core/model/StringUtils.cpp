#include "model/StringUtils.h"

#include <algorithm>

std::vector<std::string> StringUtils::split(const std::string& text, const char& separator) {
  std::vector<std::string> fields;
  fields.reserve(static_cast<std::size_t>(std::count(text.begin(), text.end(), separator)) + 1U);
  std::size_t begin = 0;
  for (std::size_t end = text.find(separator); end != std::string::npos; end = text.find(separator, begin)) {
    fields.emplace_back(text, begin, end - begin);
    begin = end + 1;
  }
  fields.emplace_back(text, begin, std::string::npos);
  return fields;
}
