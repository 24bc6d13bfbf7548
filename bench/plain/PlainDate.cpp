#include "bench/plain/PlainDate.h"

namespace Plain {

namespace {

constexpr int daysPerEra = 146097; // of 400 years

struct Month {
  int year;
  int month;
};

/// Years run from March, so that the leap day comes last.
Month monthOf(int number) {
  const int era = number / daysPerEra;
  const int dayOfEra = number % daysPerEra;
  const int yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
  const int dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
  const int monthFromMarch = (5 * dayOfYear + 2) / 153;
  const int month = monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9;
  return {yearOfEra + era * 400 + (month <= 2 ? 1 : 0), month};
}

int numberOf(int year, int month, int day) {
  const int yearFromMarch = month <= 2 ? year - 1 : year;
  const int era = yearFromMarch / 400;
  const int yearOfEra = yearFromMarch % 400;
  const int dayOfYear = (153 * (month > 2 ? month - 3 : month + 9) + 2) / 5 + day - 1;
  return era * daysPerEra + yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
}

} // namespace

Date::Date(int year, int month, int day) : number_(numberOf(year, month, day)) {}

Date Date::nextMonth() const {
  const Month own = monthOf(number_);
  return own.month == 12 ? Date(own.year + 1, 1, 1) : Date(own.year, own.month + 1, 1);
}

} // namespace Plain
