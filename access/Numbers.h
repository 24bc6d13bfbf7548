#pragma once

#include "lagomare_export.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace Lagomare {

// The one place where text becomes a number. Accepted is what the standard conversions accept in the "C"
// locale, whatever locale the process has set: leading white space, a sign, and whatever follows the number.
// The errors are theirs too: InvalidField where there is no number, FieldOutOfRange where it does not fit.

/// As std::stoul in base 10 with 32 bits on every platform: "-1" is 4294967295, and 4294967296 is out of
/// range. what() of the errors is "stoul".
[[nodiscard]] LAGOMARE_EXPORT std::uint32_t toUnsigned(std::string_view text);

/// As std::stod: decimal and hexadecimal numbers, infinities and NaN. Numbers too small for full
/// precision (subnormal ones) are out of range, also where they are exact: C libraries disagree about those. what() of
/// the errors is "stod".
[[nodiscard]] LAGOMARE_EXPORT double toDouble(std::string_view text);
/// The same number; nothing where toDouble throws.
[[nodiscard]] LAGOMARE_EXPORT std::optional<double> readDouble(std::string_view text);

/// A number, and how much of its text it takes: the conversions ignore what follows.
struct NumberInText {
  double value;
  std::size_t length; ///< characters from the text's first one on, leading white space included
};
/// What toDouble reads; nothing where it throws.
[[nodiscard]] LAGOMARE_EXPORT std::optional<NumberInText> findDouble(std::string_view text);
/// How many characters toUnsigned takes; 0 where it throws.
[[nodiscard]] LAGOMARE_EXPORT std::size_t lengthOfUnsigned(std::string_view text);

/// toDouble, truncated toward zero; FieldOutOfRange "stod" where the result does not fit.
[[nodiscard]] LAGOMARE_EXPORT std::int32_t toTruncatedInt(std::string_view text);
[[nodiscard]] LAGOMARE_EXPORT std::uint32_t toTruncatedUnsigned(std::string_view text);

} // namespace Lagomare
