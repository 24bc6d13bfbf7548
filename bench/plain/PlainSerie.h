#pragma once

#include "bench/plain/PlainDate.h"

#include <map>

namespace Plain {

struct Interval {
  Date begin;
  Date end;
};

/// Values by date.
class Serie {
public:
  void setValue(const Date& date, double value) { values_[date] = value; }
  /// 0.0 where there is none.
  [[nodiscard]] double getValue(const Date& date) const {
    const auto found = values_.find(date);
    return found == values_.end() ? 0.0 : found->second;
  }
  void fill(double value, const Interval& interval) {
    for (Date date = interval.begin; date <= interval.end; date = date.nextMonth())
      setValue(date, value);
  }

private:
  std::map<Date, double> values_;
};

} // namespace Plain
