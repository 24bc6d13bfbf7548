#pragma once

#include <functional>
#include <string>
#include <vector>

namespace LagomareBench {

/// What a table of an Access sample holds instead of its own rows: copies of its first row, each with some values put
/// into it.
struct AccessRows {
  std::vector<std::string> columns; ///< all of the table's, in no order; the first table that has them is meant
  unsigned count;
  /// Puts values into the row of a number, from 1. `fixed` is where the columns of fixed size begin.
  std::function<void(char* fixed, unsigned row)> fill;
};

/// Writes a copy of an Access sample with these tables: their pages of rows are put behind the file's last page, and
/// their definitions and maps of pages are changed to say so.
void writeAccessStandIn(const std::string& sample, const std::string& file, const std::vector<AccessRows>& tables);

} // namespace LagomareBench
