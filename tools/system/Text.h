#pragma once

#include <string>
#include <string_view>

namespace LagomareTools {

/// A text as people see it: the query channel's no-break spaces (U+00A0) are plain blanks again, and bytes that are no
/// UTF-8 are U+FFFD.
[[nodiscard]] std::string plainText(std::string_view text);

/// A text of any bytes on one line, harmless on a terminal: control characters and bytes that are no UTF-8 are
/// escaped, no-break spaces are plain blanks.
[[nodiscard]] std::string oneLine(std::string_view text);

/// The beginning of a text that may be very long, for messages.
[[nodiscard]] std::string excerpt(const std::string& text);

} // namespace LagomareTools
