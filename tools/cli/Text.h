#pragma once

#include "model/Date.h"

#include <array>
#include <string>
#include <string_view>

namespace LagomareCli {

/// A text as people see it: the query channel's no-break spaces (U+00A0) are plain blanks again, and bytes that are no
/// UTF-8 are U+FFFD.
[[nodiscard]] std::string plainText(std::string_view text);

/// A text of any bytes on one line, harmless on a terminal: control characters and bytes that are no UTF-8 are
/// escaped, no-break spaces are plain blanks.
[[nodiscard]] std::string oneLine(std::string_view text);

/// The beginning of a text that may be very long, for messages.
[[nodiscard]] std::string excerpt(const std::string& text);

/// Year, month and day: "1990-01-31".
[[nodiscard]] std::string isoDate(const Date& date);
/// "1990-01".
[[nodiscard]] std::string isoMonth(const Date& date);

/// A finite number's shortest text that reads back to the same number, with an exponent only where it is very large or
/// very small.
class NumberText {
public:
  explicit NumberText(double value);

  [[nodiscard]] std::string_view view() const { return {text_.data(), length_}; }

private:
  std::array<char, 40> text_{};
  std::size_t length_;
};

} // namespace LagomareCli
