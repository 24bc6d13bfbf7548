#include "access/Numbers.h"

#include "access/FieldError.h"

#include <array>
#include <cfloat>
#include <charconv>
#include <limits>
#include <string>
#include <system_error>

namespace Lagomare {

namespace {

constexpr const char* unsignedConversion = "stoul";
constexpr const char* doubleConversion = "stod";

bool isSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// A number's text without its leading white space and its sign.
struct SignAndDigits {
  explicit SignAndDigits(std::string_view text) : digits(text) {
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

struct Reading {
  double value;
  std::errc error; ///< of from_chars
  const char* end; ///< of what was read
};

/// Digits with at most one point among them, 15 at most, as nearly all values are written. Both the digits as an
/// integer and the power of ten are exact doubles then, so their quotient is the nearest double. Nothing for any other
/// text.
std::optional<double> readPlainDecimal(std::string_view text) {
  constexpr std::size_t mostDigits = 15;
  static constexpr std::array<double, mostDigits + 1> powersOfTen{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                                  1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  if (FLT_EVAL_METHOD != 0 || text.size() > mostDigits + 1)
    return std::nullopt;
  std::int64_t integer = 0;
  std::size_t point = text.size();
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (isDigit(text[at]))
      integer = integer * 10 + (text[at] - '0');
    else if (text[at] == '.' && point == text.size())
      point = at;
    else
      return std::nullopt;
  }
  const bool hasPoint = point < text.size();
  const std::size_t digits = text.size() - (hasPoint ? 1U : 0U);
  if (digits == 0 || digits > mostDigits)
    return std::nullopt;
  return static_cast<double>(integer) / powersOfTen[hasPoint ? digits - point : 0U];
}

bool isTooSmall(double magnitude) { return magnitude < std::numeric_limits<double>::min() && magnitude != 0.0; }

Reading readMagnitude(std::string_view digits) {
  const bool isHex = isHexadecimal(digits);
  const char* const begin = digits.data() + (isHex ? 2 : 0);
  const char* const end = digits.data() + digits.size();
  if (begin != end && *begin == '-') // a second sign
    return {0.0, std::errc::invalid_argument, begin};
  double magnitude = 0.0;
  const auto format = isHex ? std::chars_format::hex : std::chars_format::general;
  const auto [last, error] = std::from_chars(begin, end, magnitude, format);
  if (error == std::errc() && isTooSmall(magnitude))
    return {0.0, std::errc::result_out_of_range, last};
  return {magnitude, error, last};
}

Reading readNumber(std::string_view text) {
  if (const auto plain = readPlainDecimal(text))
    return {*plain, {}, text.data() + text.size()};
  const SignAndDigits number(text);
  Reading reading = readMagnitude(number.digits);
  if (number.isNegative)
    reading.value = -reading.value;
  return reading;
}

std::from_chars_result readDigits(std::string_view digits, std::uint32_t& magnitude) {
  return std::from_chars(digits.data(), digits.data() + digits.size(), magnitude);
}

[[noreturn]] void throwError(std::errc error, const char* conversion, std::string_view text) {
  if (error == std::errc::result_out_of_range)
    throw FieldOutOfRange(conversion, std::string(text));
  throw InvalidField(conversion, std::string(text));
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
  const SignAndDigits number(text);
  std::uint32_t magnitude = 0;
  const std::errc error = readDigits(number.digits, magnitude).ec;
  if (error != std::errc())
    throwError(error, unsignedConversion, text);
  return number.isNegative ? 0U - magnitude : magnitude;
}

std::size_t lengthOfUnsigned(std::string_view text) {
  std::uint32_t magnitude = 0;
  const auto [end, error] = readDigits(SignAndDigits(text).digits, magnitude);
  return error == std::errc() ? static_cast<std::size_t>(end - text.data()) : 0;
}

double toDouble(std::string_view text) {
  const Reading reading = readNumber(text);
  if (reading.error != std::errc())
    throwError(reading.error, doubleConversion, text);
  return reading.value;
}

std::optional<double> readDouble(std::string_view text) {
  const Reading reading = readNumber(text);
  return reading.error == std::errc() ? std::optional(reading.value) : std::nullopt;
}

std::optional<NumberInText> findDouble(std::string_view text) {
  const Reading reading = readNumber(text);
  if (reading.error != std::errc())
    return std::nullopt;
  return NumberInText{reading.value, static_cast<std::size_t>(reading.end - text.data())};
}

std::int32_t toTruncatedInt(std::string_view text) { return truncate<std::int32_t>(text); }

std::uint32_t toTruncatedUnsigned(std::string_view text) { return truncate<std::uint32_t>(text); }

} // namespace Lagomare
