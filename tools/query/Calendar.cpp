#include "tools/query/Calendar.h"

#include <array>

namespace LagomareQuery {

namespace {

bool isLeapYear(int year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

int daysInMonth(int year, int month) {
  constexpr std::array<int, 12> days{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return days[static_cast<std::size_t>(month - 1)] + (month == 2 && isLeapYear(year) ? 1 : 0);
}

} // namespace

bool isDay(const Day& day) {
  return day.year >= 0 && day.year <= 9999 && day.month >= 1 && day.month <= 12 && day.day >= 1 &&
         day.day <= daysInMonth(day.year, day.month);
}

Day dayFromAccess(std::int64_t days) {
  // The computation counts years from March, so that a leap day is the last day of its year. An era is 400 years; all
  // eras are of the same length.
  constexpr std::int64_t daysFromYear0March1 = 693899; // the number of 1899-12-30
  constexpr std::int64_t eraDays = 146097;
  const std::int64_t shifted = days + daysFromYear0March1 + eraDays; // one era added, so it is never negative
  const std::int64_t inEra = shifted % eraDays;
  const std::int64_t yearOfEra = (inEra - inEra / 1460 + inEra / 36524 - inEra / 146096) / 365;
  const std::int64_t dayOfYear = inEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
  const std::int64_t monthFromMarch = (5 * dayOfYear + 2) / 153;
  const auto month = static_cast<int>(monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9);
  const std::int64_t year = yearOfEra + (shifted / eraDays - 1) * 400 + (month <= 2 ? 1 : 0);
  return {static_cast<int>(year), month, static_cast<int>(dayOfYear - (153 * monthFromMarch + 2) / 5 + 1)};
}

} // namespace LagomareQuery
