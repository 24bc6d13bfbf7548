#include "tools/query/access/AccessNumber.h"

#include "tools/query/Calendar.h"
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace LagomareQuery {

namespace {

double doubleOfText(const char* begin, const char* end) {
  double value = 0;
  std::from_chars(begin, end, value);
  return value;
}

/// Returns the decimal digits of a number of four groups of 32 bits, the most significant first. There can be leading
/// zeros.
std::string decimalDigits(std::array<std::uint32_t, 4> groups) {
  constexpr std::uint64_t base = 1'000'000'000;
  std::string digits;
  for (int block = 0; block < 5; ++block) { // 45 digits; 128 bits need 39
    std::uint64_t remainder = 0;
    for (std::uint32_t& group : groups) {
      const std::uint64_t dividend = remainder << 32 | group;
      group = static_cast<std::uint32_t>(dividend / base);
      remainder = dividend % base;
    }
    std::string text = std::to_string(remainder);
    text.insert(0, 9 - text.size(), '0');
    digits.insert(0, text);
  }
  return digits;
}

[[noreturn]] void throwDateOutside() { throwDamaged("a date outside the years 1 to 9999"); }

} // namespace

double doubleOfSingle(float single) {
  std::array<char, 32> text{};
  return doubleOfText(text.data(), std::to_chars(text.data(), text.data() + text.size(), single).ptr);
}

double doubleOfCurrency(std::int64_t tenThousandths) {
  const std::string text = std::to_string(tenThousandths) + "e-4";
  return doubleOfText(text.data(), text.data() + text.size());
}

double doubleOfDecimal(AccessBytes stored, unsigned scale) {
  constexpr std::uint8_t negativeFlag = 0x80;
  const std::array<std::uint32_t, 4> groups = {stored.u32(1), stored.u32(5), stored.u32(9), stored.u32(13)};
  const std::string sign = (stored.u8(0) & negativeFlag) != 0 ? "-" : "";
  const std::string text = sign + decimalDigits(groups) + "e-" + std::to_string(scale);
  return doubleOfText(text.data(), text.data() + text.size());
}

std::string isoOfDateTime(double days) {
  constexpr double firstDay = -693593; // 0001-01-01
  constexpr double lastDay = 2958465;  // 9999-12-31
  constexpr int daySeconds = 86400;
  const double day = std::trunc(days);
  if (!(day >= firstDay && day <= lastDay))
    throwDateOutside();
  const auto rounded = static_cast<int>(std::lround(std::abs(days - day) * daySeconds));
  const int second = rounded % daySeconds;
  const Day date = dayFromAccess(static_cast<std::int64_t>(day) + rounded / daySeconds);
  if (date.year > 9999)
    throwDateOutside();
  std::array<char, 64> text{};
  static_cast<void>(std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d:%02d", date.year, date.month,
                                  date.day, second / 3600, second / 60 % 60, second % 60));
  return text.data();
}

std::string textOfGuid(AccessBytes stored) {
  std::array<char, 64> text{};
  static_cast<void>(std::snprintf(text.data(), text.size(), "{%08X-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X}",
                                  stored.u32(0), stored.u16(4), stored.u16(6), stored.u8(8), stored.u8(9),
                                  stored.u8(10), stored.u8(11), stored.u8(12), stored.u8(13), stored.u8(14),
                                  stored.u8(15)));
  return text.data();
}

} // namespace LagomareQuery
