#include "model/Date.h"

#include <stdexcept>
#include <string_view>

namespace {

constexpr unsigned lastYear = 9999;

void check(unsigned year, unsigned month, unsigned day) {
  if (year >= 1 && year <= lastYear && month >= 1 && month <= 12 && day >= 1 && day <= Date::daysInMonth(year, month))
    return;
  throw std::invalid_argument("Date: there is no day " + std::to_string(day) + "/" + std::to_string(month) + "/" +
                              std::to_string(year) + " (days exist from 1/1/1 to 31/12/9999)");
}

/// Takes one to `most` digits off the front of the text.
bool takeNumber(std::string_view& text, std::size_t most, unsigned& number) {
  std::size_t length = 0;
  number = 0;
  while (length < text.size() && length < most && text[length] >= '0' && text[length] <= '9')
    number = number * 10 + static_cast<unsigned>(text[length++] - '0');
  text.remove_prefix(length);
  return length > 0;
}

bool takeLetter(std::string_view& text, char letter) {
  if (text.empty() || text.front() != letter)
    return false;
  text.remove_prefix(1);
  return true;
}

struct Fields {
  unsigned day = 1;
  unsigned month = 1;
  unsigned year = 1;
};

bool takeField(std::string_view& text, char field, Fields& fields) {
  switch (field) {
  case 'd':
    return takeNumber(text, 2, fields.day);
  case 'm':
    return takeNumber(text, 2, fields.month);
  case 'Y':
    return takeNumber(text, 4, fields.year);
  default:
    return false;
  }
}

bool takeAll(std::string_view text, std::string_view format, Fields& fields) {
  while (!format.empty()) {
    const bool isField = format.size() > 1 && format.front() == '%';
    const bool fits = isField ? takeField(text, format[1], fields) : takeLetter(text, format.front());
    if (!fits)
      return false;
    format.remove_prefix(isField ? 2 : 1);
  }
  return text.empty();
}

} // namespace

Date::Date(unsigned year, unsigned char month, unsigned char day) { setDay(day, month, year); }

Date Date::fromString(const std::string& text, const std::string& format) {
  Fields fields;
  if (!takeAll(text, format, fields))
    throw std::invalid_argument("Date::fromString: \"" + text + "\" is not a date of the form " + format);
  Date date;
  date.setDay(static_cast<unsigned char>(fields.day), static_cast<unsigned char>(fields.month), fields.year);
  return date;
}

void Date::setYear(unsigned year) {
  unsigned char day = day_;
  if (month_ == 2 && day == 29 && daysInMonth(year, 2) == 28)
    day = 28;
  setDay(day, month_, year);
}

void Date::setDay(unsigned char day, unsigned char month, unsigned year) {
  check(year, month, day);
  year_ = year;
  month_ = month;
  day_ = day;
}

Date& Date::operator--() {
  if (day_ > 1) {
    --day_;
  } else if (month_ > 1) {
    const unsigned month = month_ - 1U;
    setDay(static_cast<unsigned char>(daysInMonth(year_, month)), static_cast<unsigned char>(month), year_);
  } else {
    setDay(31, 12, year_ - 1U);
  }
  return *this;
}

void Date::advance(unsigned days) {
  Date next = *this;
  while (days > daysInMonth(next.year_, next.month_) - next.day_) {
    days -= daysInMonth(next.year_, next.month_) - next.day_ + 1U;
    if (next.month_ < 12)
      next.setDay(1, static_cast<unsigned char>(next.month_ + 1), next.year_);
    else
      next.setDay(1, 1, next.year_ + 1U);
  }
  next.day_ = static_cast<unsigned char>(next.day_ + days);
  *this = next;
}
