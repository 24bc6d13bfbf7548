#pragma once

#include <map>
#include <string>
#include <vector>

namespace Plain {

using Row = std::vector<std::string>;
using Rows = std::map<unsigned, std::vector<Row>>;

[[nodiscard]] std::vector<std::string> split(const std::string& text, char separator);

/// An answer file as the library reads it: the rows by the number in their first field, the last field dropped.
[[nodiscard]] Rows readRows(const std::string& file);

} // namespace Plain
