#include "access/Numbers.h"

#include "access/FieldError.h"

#include <array>
#include <cfloat>
#include <charconv>
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

/// Digits with at most one point among them, 15 at most. Both the digits as an integer and the power of ten are exact
/// doubles then, so their quotient is the nearest double. False, and nothing read, for any other text.
bool readPlainDecimal(std::string_view digits, double& magnitude) {
  constexpr std::size_t mostDigits = 15;
  constexpr std::array<double, mostDigits + 1> powersOfTen{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                           1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  if (FLT_EVAL_METHOD != 0 || digits.size() > mostDigits + 1)
    return false;
  std::uint64_t integer = 0;
  std::size_t read = 0;
  std::size_t decimals = 0;
  bool hasPoint = false;
  for (const char c : digits) {
    if (isDigit(c)) {
      integer = integer * 10 + static_cast<std::uint64_t>(c - '0');
      ++read;
      decimals += hasPoint ? 1U : 0U;
    } else if (c == '.' && !hasPoint) {
      hasPoint = true;
    } else {
      return false;
    }
  }
  if (read == 0 || read > mostDigits)
    return false;
  magnitude = static_cast<double>(integer) / powersOfTen[decimals];
  return true;
}

bool isTooSmall(double magnitude) { return magnitude != 0.0 && magnitude < std::numeric_limits<double>::min(); }

std::from_chars_result readNumber(std::string_view digits, double& magnitude) {
  const char* const end = digits.data() + digits.size();
  if (isHexadecimal(digits))
    return std::from_chars(digits.data() + 2, end, magnitude, std::chars_format::hex);
  if (!digits.empty() && digits.front() == '-') // a second sign
    return {digits.data(), std::errc::invalid_argument};
  return std::from_chars(digits.data(), end, magnitude);
}

/// The errors of from_chars, and out of range where the number is too small for full precision.
std::errc readMagnitude(std::string_view digits, double& magnitude) {
  if (readPlainDecimal(digits, magnitude))
    return {};
  const std::errc error = readNumber(digits, magnitude).ec;
  return error == std::errc() && isTooSmall(magnitude) ? std::errc::result_out_of_range : error;
}

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
  const std::errc error = readMagnitude(number.digits, magnitude);
  if (error == std::errc::invalid_argument)
    throw InvalidField(doubleConversion, std::string(text));
  if (error == std::errc::result_out_of_range)
    throw FieldOutOfRange(doubleConversion, std::string(text));
  return number.isNegative ? -magnitude : magnitude;
}

std::int32_t toTruncatedInt(std::string_view text) { return truncate<std::int32_t>(text); }

std::uint32_t toTruncatedUnsigned(std::string_view text) { return truncate<std::uint32_t>(text); }

} // namespace Lagomare
