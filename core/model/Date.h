#pragma once

#include "telu_qt_export.h"

#include <string>

/// A day of the proleptic Gregorian calendar, years 1 to 9999. Every operation that would leave these years,
/// or name a month or a day that does not exist, throws std::invalid_argument and leaves the date as it was.
///
/// Kept as fields, not as a day number: imports walk by months and ask for the month at each step.
class TELU_QT_EXPORT Date {
public:
  /// 1 January of the year 1.
  Date() = default;
  Date(unsigned year, unsigned char month, unsigned char day);

  /// Reads a text that holds digits exactly as the format says: %d and %m take one or two, %Y one to four;
  /// any other character of the format stands for itself. Throws std::invalid_argument, naming the text.
  [[nodiscard]] static Date fromString(const std::string& text, const std::string& format);

  [[nodiscard]] unsigned getYear() const { return year_; }
  [[nodiscard]] unsigned char getMonth() const { return month_; } ///< 1 to 12
  [[nodiscard]] unsigned char getDay() const { return day_; }

  /// Moves to the same day of another year; 29 February becomes 28 in a year that lacks it.
  void setYear(unsigned year);
  /// Sets the whole date.
  void setDay(unsigned char day, unsigned char month, unsigned year);

  Date& operator--();
  /// Advances by a number of days.
  Date& operator+=(const unsigned& days);

  [[nodiscard]] bool operator==(const Date& other) const { return rank() == other.rank(); }
  [[nodiscard]] bool operator!=(const Date& other) const { return rank() != other.rank(); }
  [[nodiscard]] bool operator<(const Date& other) const { return rank() < other.rank(); }
  [[nodiscard]] bool operator<=(const Date& other) const { return rank() <= other.rank(); }

  /// Days of a month, 1 to 12.
  [[nodiscard]] static unsigned daysInMonth(unsigned year, unsigned month);

private:
  /// Grows with the date; no count of days.
  [[nodiscard]] unsigned rank() const { return (year_ * 16U + month_) * 32U + day_; }
  void advance(unsigned days);

  unsigned year_ = 1;
  unsigned char month_ = 1;
  unsigned char day_ = 1;
};

inline unsigned Date::daysInMonth(unsigned year, unsigned month) {
  if (month == 2)
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0) ? 29U : 28U;
  return 30U + ((month + month / 8U) & 1U);
}

inline Date& Date::operator+=(const unsigned& days) {
  const unsigned left = daysInMonth(year_, month_) - day_;
  if (days <= left) {
    day_ = static_cast<unsigned char>(day_ + days);
  } else if (days - left <= 28 && month_ < 12) {
    ++month_;
    day_ = static_cast<unsigned char>(days - left);
  } else {
    advance(days);
  }
  return *this;
}
