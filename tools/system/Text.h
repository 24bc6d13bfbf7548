#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace LagomareTools {

/// Returns a text as people see it: the query channel's no-break spaces (U+00A0) and control characters become plain
/// blanks, invalid bytes U+FFFD.
[[nodiscard]] std::string plainText(std::string_view text);

/// Returns any text on one line that is harmless on a terminal: control characters and invalid bytes are escaped,
/// no-break spaces become plain blanks.
[[nodiscard]] std::string oneLine(std::string_view text);

/// Returns the beginning of a text that may be very long, for messages.
[[nodiscard]] std::string excerpt(const std::string& text);

/// Returns "no links", "1 link", "2 links" for the noun "link".
[[nodiscard]] std::string counted(std::size_t count, const char* noun);

} // namespace LagomareTools
