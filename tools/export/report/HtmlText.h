#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace LagomareTools {

/// A text as people see it (plainText), with the characters escaped that would be markup, in an attribute too.
[[nodiscard]] std::string htmlText(std::string_view text);

/// All digits of a number, those before the point in groups of three: "19 528.5" with a narrow no-break space, so that
/// it means the same where the comma is the decimal mark. Empty where the number is missing or not finite.
[[nodiscard]] std::string figureText(std::optional<double> value);
/// The same with four significant digits, for what was computed, such as a mean.
[[nodiscard]] std::string roundedText(std::optional<double> value);

/// The number of characters that a text shows.
[[nodiscard]] std::size_t lengthOf(std::string_view text);
/// A text cut to so many characters, the last one an ellipsis.
[[nodiscard]] std::string shortened(const std::string& text, std::size_t length);

} // namespace LagomareTools
