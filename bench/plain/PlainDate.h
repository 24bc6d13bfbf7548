#pragma once

namespace Plain {

/// A day as a day number: comparing and adding are plain arithmetic.
class Date {
public:
  Date(int year, int month, int day);

  [[nodiscard]] int year() const;
  [[nodiscard]] int month() const;
  [[nodiscard]] int day() const;

  /// The first day of the next month.
  [[nodiscard]] Date nextMonth() const;
  [[nodiscard]] Date previousDay() const { return Date(number_ - 1); }

  bool operator<(const Date& other) const { return number_ < other.number_; }
  bool operator<=(const Date& other) const { return number_ <= other.number_; }

private:
  explicit Date(int number) : number_(number) {}

  int number_; ///< days since 1 March of the year 0
};

} // namespace Plain
