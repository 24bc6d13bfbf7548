#pragma once

namespace Plain {

/// A day as a day number: comparing and adding are plain arithmetic.
class Date {
public:
  Date(int year, int month, int day);

  /// The first day of the next month.
  [[nodiscard]] Date nextMonth() const;

  bool operator<(const Date& other) const { return number_ < other.number_; }
  bool operator<=(const Date& other) const { return number_ <= other.number_; }

private:
  int number_; ///< days since 1 March of the year 0
};

} // namespace Plain
