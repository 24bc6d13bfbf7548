#include "tools/check/rules/Months.h"

#include <array>
#include <charconv>
#include <fmt/format.h>
#include <string_view>
#include <system_error>

namespace LagomareTools {

namespace {

constexpr int monthsPerYear = 12;

/// Takes digits off the front of a text.
std::optional<int> takeNumber(std::string_view& text) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || number < 0)
    return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  return number;
}

/// A whole number, from 1 to `most`; a point and zeros may follow.
std::optional<int> readNumber(std::optional<std::string_view> text, int most) {
  if (!text)
    return std::nullopt;
  const auto number = takeNumber(*text);
  const bool isWhole = text->empty() || (text->front() == '.' && text->find_first_not_of('0', 1) == text->npos);
  return number && *number >= 1 && *number <= most && isWhole ? number : std::nullopt;
}

std::optional<int> monthOf(std::optional<int> year, std::optional<int> month) {
  return year && month && *month >= 1 && *month <= monthsPerYear ? std::optional(*year * monthsPerYear + *month - 1)
                                                                 : std::nullopt;
}

/// 2000-01-31 as the bundled query executable writes it, with a time or without, or 31/01/2000.
std::optional<int> readDate(std::string_view text) {
  constexpr std::size_t yearLength = 4;
  const auto takeField = [&text] {
    const auto number = takeNumber(text);
    text.remove_prefix(text.empty() ? 0U : 1U);
    return number;
  };
  if (text.size() > yearLength && (text[yearLength] == '-' || text[yearLength] == '/')) {
    const auto year = takeField();
    return monthOf(year, takeField());
  }
  static_cast<void>(takeField());
  const auto month = takeField();
  return monthOf(takeField(), month);
}

} // namespace

Months::Months(const TableRows& rows, const std::optional<Interval>& interval)
    : rows_(rows), date_(rows.table().columnOf(Type::date)), year_(rows.table().columnOf(Type::year)),
      month_(rows.table().columnOf(Type::month)), isOfPeriod_(rows.table().layout == Layout::period),
      areTold_(rows.has(date_) || (rows.has(month_) && (!isOfPeriod_ || rows.has(year_)))),
      areKnown_(areTold_ && (!isOfPeriod_ || interval)), numOfRows_(isOfPeriod_ ? noLimit : monthsPerYear) {
  if (!isOfPeriod_ || !interval)
    return;
  const Date& begin = interval->getBegin();
  const Date& end = interval->getEnd();
  first_ = static_cast<int>(begin.getYear()) * monthsPerYear + begin.getMonth() - 1;
  numOfRows_ = (end.getYear() - begin.getYear()) * 12U + end.getMonth() - begin.getMonth() + 1U;
}

std::optional<int> Months::told() const {
  if (rows_.has(date_))
    return readDate(rows_.at(date_).value_or(""));
  const auto month = readNumber(rows_.at(month_), monthsPerYear);
  if (!isOfPeriod_)
    return month ? std::optional(*month - 1) : std::nullopt;
  return monthOf(readNumber(rows_.at(year_), 9999), month);
}

std::string Months::textOf(int month) const {
  static constexpr std::array<const char*, monthsPerYear> names{"January",   "February", "March",    "April",
                                                                "May",       "June",     "July",     "August",
                                                                "September", "October",  "November", "December"};
  if (!isOfPeriod_)
    return names[static_cast<std::size_t>(month)];
  return fmt::format("{:04}-{:02}", month / monthsPerYear, month % monthsPerYear + 1);
}

std::size_t Months::column() const { return rows_.has(date_) ? date_ : month_; }

} // namespace LagomareTools
