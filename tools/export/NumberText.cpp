#include "tools/export/NumberText.h"

#include <charconv>
#include <cmath>
#include <fmt/format.h>

namespace LagomareTools {

std::string isoMonth(const Date& date) { return fmt::format("{:04}-{:02}", date.getYear(), unsigned{date.getMonth()}); }

std::string isoDate(const Date& date) { return fmt::format("{}-{:02}", isoMonth(date), unsigned{date.getDay()}); }

NumberText::NumberText(double value) {
  const double magnitude = std::fabs(value);
  const bool isPlain = magnitude == 0.0 || (magnitude >= 1e-5 && magnitude < 1e15);
  char* const begin = text_.data();
  char* const end = begin + text_.size();
  const auto result =
      std::to_chars(begin, end, value, isPlain ? std::chars_format::fixed : std::chars_format::scientific);
  length_ = static_cast<std::size_t>(result.ptr - begin);
}

} // namespace LagomareTools
