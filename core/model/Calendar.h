#pragma once

#include "model/Date.h"
#include "model/Interval.h"

/// Calendar arithmetic on intervals. The idiom of a walk over an interval's steps:
///
///     for (Date date = interval.getBegin(); date <= interval.getEnd();
///          date += Calendar::incInterval(date, interval))
class Calendar {
public:
  /// Days from a date to the interval's next step; monthly steps are the first days of the months.
  [[nodiscard]] static unsigned incInterval(const Date& date, const Interval& /*monthly, the one periodicity*/) {
    return Date::daysInMonth(date.getYear(), date.getMonth()) - date.getDay() + 1U;
  }
};
