#include "bench/plain/PlainDate.h"

namespace Plain {

namespace {

constexpr int daysPerEra = 146097; // of 400 years

struct Fields {
  int year;
  int month;
  int day;
};

/// Years run from March, so that the leap day comes last.
Fields fieldsOf(int number) {
  const int era = number / daysPerEra;
  const int dayOfEra = number % daysPerEra;
  const int yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
  const int dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
  const int monthFromMarch = (5 * dayOfYear + 2) / 153;
  const int month = monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9;
  const int day = dayOfYear - (153 * monthFromMarch + 2) / 5 + 1;
  return {yearOfEra + era * 400 + (month <= 2 ? 1 : 0), month, day};
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

int Date::year() const { return fieldsOf(number_).year; }

int Date::month() const { return fieldsOf(number_).month; }

int Date::day() const { return fieldsOf(number_).day; }

Date Date::nextMonth() const {
  const Fields fields = fieldsOf(number_);
  return fields.month == 12 ? Date(fields.year + 1, 1, 1) : Date(fields.year, fields.month + 1, 1);
}

} // namespace Plain
