#include "access/Numbers.h"

#include "access/FieldError.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace Lagomare {

namespace {

constexpr const char* unsignedConversion = "stoul";
constexpr const char* doubleConversion = "stod";

bool isSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// A number's text without its leading white space and its sign.
struct Unsigned {
  explicit Unsigned(std::string_view text) : digits(text) {
    while (!digits.empty() && isSpace(digits.front()))
      digits.remove_prefix(1);
    if (!digits.empty() && (digits.front() == '-' || digits.front() == '+')) {
      isNegative = digits.front() == '-';
      digits.remove_prefix(1);
    }
  }

  std::string_view digits;
  bool isNegative = false;
};

bool isHexadecimal(std::string_view digits) {
  if (digits.size() < 3 || digits[0] != '0' || (digits[1] != 'x' && digits[1] != 'X'))
    return false;
  const char first = digits[2] == '.' && digits.size() > 3 ? digits[3] : digits[2];
  return isDigit(first) || (first >= 'a' && first <= 'f') || (first >= 'A' && first <= 'F');
}

std::from_chars_result readMagnitude(std::string_view digits, double& magnitude) {
  const char* const end = digits.data() + digits.size();
  if (isHexadecimal(digits))
    return std::from_chars(digits.data() + 2, end, magnitude, std::chars_format::hex);
  return std::from_chars(digits.data(), end, magnitude);
}

bool isTooSmall(double magnitude) { return magnitude != 0.0 && magnitude < std::numeric_limits<double>::min(); }

/// Truncation toward zero fits between the limits exclusive of the next integers.
template <typename Integer>
Integer truncate(std::string_view text) {
  const double value = toDouble(text);
  if (value > static_cast<double>(std::numeric_limits<Integer>::min()) - 1.0 &&
      value < static_cast<double>(std::numeric_limits<Integer>::max()) + 1.0)
    return static_cast<Integer>(value);
  throw FieldOutOfRange(doubleConversion, std::string(text));
}

} // namespace

std::uint32_t toUnsigned(std::string_view text) {
  const Unsigned number(text);
  std::uint32_t magnitude = 0;
  const auto end = number.digits.data() + number.digits.size();
  const auto result = std::from_chars(number.digits.data(), end, magnitude);
  if (result.ec == std::errc::invalid_argument)
    throw InvalidField(unsignedConversion, std::string(text));
  if (result.ec == std::errc::result_out_of_range)
    throw FieldOutOfRange(unsignedConversion, std::string(text));
  return number.isNegative ? 0U - magnitude : magnitude;
}

double toDouble(std::string_view text) {
  const Unsigned number(text);
  double magnitude = 0.0;
  // A second sign is no number, though from_chars would take a minus.
  const bool hasSign = !number.digits.empty() && number.digits.front() == '-';
  const auto result =
      hasSign ? std::from_chars_result{nullptr, std::errc::invalid_argument} : readMagnitude(number.digits, magnitude);
  if (result.ec == std::errc::invalid_argument)
    throw InvalidField(doubleConversion, std::string(text));
  if (result.ec == std::errc::result_out_of_range || isTooSmall(magnitude))
    throw FieldOutOfRange(doubleConversion, std::string(text));
  return number.isNegative ? -magnitude : magnitude;
}

std::int32_t toTruncatedInt(std::string_view text) { return truncate<std::int32_t>(text); }

std::uint32_t toTruncatedUnsigned(std::string_view text) { return truncate<std::uint32_t>(text); }

} // namespace Lagomare
