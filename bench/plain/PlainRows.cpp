#include "bench/plain/PlainRows.h"

#include <fstream>

namespace Plain {

std::vector<std::string> split(const std::string& text, char separator) {
  std::vector<std::string> fields;
  std::size_t begin = 0;
  std::size_t end = 0;
  while ((end = text.find(separator, begin)) != std::string::npos) {
    fields.push_back(text.substr(begin, end - begin));
    begin = end + 1;
  }
  fields.push_back(text.substr(begin));
  return fields;
}

Rows readRows(const std::string& file) {
  Rows rows;
  std::ifstream in(file);
  std::string line;
  while (std::getline(in, line)) {
    if (line.empty() || line == "\r")
      continue;
    std::vector<std::string> fields = split(line, ' ');
    fields.pop_back();
    const auto key = static_cast<unsigned>(std::stoul(fields.at(0)));
    rows[key].push_back(fields);
  }
  return rows;
}

} // namespace Plain
