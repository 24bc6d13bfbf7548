#pragma once

#include "access/QueryResult.h"
#include "lagomare_export.h"

#include <string>
#include <string_view>

namespace Lagomare {

// The answer file of a query executable: one line per row, fields parted by single blanks, the last field of each
// line no data. Lines end with a line feed, the last one may lack it; an empty line, or one that holds a carriage
// return alone, is skipped. Fields are parted as StringUtils::split of the stand-alone core does it, but in place: two
// blanks in a row enclose an empty field.

/// The whole file; empty where it cannot be opened or read.
[[nodiscard]] LAGOMARE_EXPORT std::string readAnswer(const std::string& file);

/// The rows by id. Throws InvalidField or FieldOutOfRange ("stoul") for a line whose first field is no id,
/// and InvalidField for a line of a single field.
[[nodiscard]] LAGOMARE_EXPORT QueryResult parseRows(std::string_view text);

/// Calls visit(line) for each line that is not skipped, without its line feed.
template <typename Visit>
void forEachLine(std::string_view text, Visit visit) {
  while (!text.empty()) {
    const std::size_t length = text.find('\n');
    const std::string_view line = text.substr(0, length);
    text.remove_prefix(length == std::string_view::npos ? text.size() : length + 1);
    if (!line.empty() && line != "\r")
      visit(line);
  }
}

/// The id of a line. Throws as parseRows does.
[[nodiscard]] LAGOMARE_EXPORT std::uint32_t keyOf(std::string_view line);

} // namespace Lagomare
