#include "tools/query/answer/NumberText.h"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace LagomareQuery {

namespace {

/// Whether the value has at most four decimals and fifteen digits; computes 10,000 times the value. Then its decimal
/// text is the shortest one, as different texts of up to fifteen digits are different doubles. This is much faster than
/// to search the shortest text of any double.
bool isInTenThousandths(double value, std::int64_t& tenThousandths) {
  constexpr double limit = 1e15;
  const double scaled = value * 1e4;
  if (!(std::abs(scaled) < limit))
    return false;
  tenThousandths = static_cast<std::int64_t>(scaled + (scaled < 0 ? -0.5 : 0.5));
  return static_cast<double>(tenThousandths) / 1e4 == value;
}

char* writeTenThousandths(char* to, std::int64_t value) {
  if (value < 0)
    *to++ = '-';
  const std::int64_t magnitude = std::abs(value);
  to = writeNumber(to, magnitude / 10000);
  if (magnitude % 10000 == 0)
    return to;
  *to++ = '.';
  const auto decimals = static_cast<unsigned>(magnitude % 10000);
  const unsigned digits[] = {decimals / 1000, decimals / 100 % 10, decimals / 10 % 10, decimals % 10};
  for (const unsigned digit : digits)
    *to++ = static_cast<char>('0' + digit);
  while (to[-1] == '0')
    --to;
  return to;
}

} // namespace

char* writeNumber(char* to, std::int64_t value) { return std::to_chars(to, to + numberRoom, value).ptr; }

char* writeNumber(char* to, double value) {
  constexpr double integerLimit = 9.2e18;
  std::int64_t tenThousandths = 0;
  if (isInTenThousandths(value, tenThousandths))
    return writeTenThousandths(to, tenThousandths);
  const double magnitude = std::abs(value);
  if (magnitude < integerLimit && std::trunc(value) == value)
    return writeNumber(to, static_cast<std::int64_t>(value));
  if (magnitude < std::numeric_limits<double>::min())
    return writeNumber(to, std::int64_t{0}); // subnormal: an importer would refuse it as out of range
  return std::to_chars(to, to + numberRoom, value, std::chars_format::fixed).ptr;
}

} // namespace LagomareQuery
