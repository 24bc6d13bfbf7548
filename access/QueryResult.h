#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

/// The fields of one line of an answer, by column from 0: column 0 is the text of the row's id, and the
/// line's last field, which is no data, is gone.
using Row = std::vector<std::string>;

/// An answer: the rows of each id, in the order of the file. The ids ascend.
using QueryResult = std::map<std::uint32_t, std::vector<Row>>;
