#pragma once

#include "model/Date.h"
#include "model/Enum.h"
#include "model/Interval.h"
#include "model/SerieType.h"
#include "model/Unit.h"
#include "telu_qt_export.h"

#include <cstddef>
#include <vector>

/// A time series: a kind, a unit, an interval, and one value per monthly step. A date stands for the step
/// that it lies in. Values may be written at any date, before the interval is set and outside it; they stay
/// when it is set. What was never written reads as 0.0.
class TELU_QT_EXPORT Serie {
public:
  Serie(const Interval& interval, const Enum<SerieType>& type, const Enum<Unit>& unit);

  [[nodiscard]] const Enum<SerieType>& getSerieType() const { return type_; }
  [[nodiscard]] const Enum<Unit>& getUnit() const { return unit_; }
  [[nodiscard]] const Interval& getInterval() const { return interval_; }
  void setInterval(const Interval& interval);

  [[nodiscard]] double getValue(const Date& date) const;
  void setValue(const Date& date, double value);

  /// Every step of the series' interval; nothing where that is empty.
  void fill(double value);
  /// Every step of the given interval; a series without an interval takes this one.
  void fill(double value, const Interval& interval);

private:
  [[nodiscard]] static std::size_t stepOf(const Date& date) {
    return std::size_t{date.getYear()} * 12U + date.getMonth();
  }
  [[nodiscard]] std::size_t numOfSteps() const { return values_.size() + stepsAlike_; }
  void cover(std::size_t firstStep, std::size_t lastStep);

  Interval interval_;
  Enum<SerieType> type_;
  Enum<Unit> unit_;
  // Dense from the first step covered to the last, or, while these are all alike, one value for all of them: the limits
  // and losses of a large network's links would else fill a third of its memory.
  std::size_t firstStep_ = 0;
  std::vector<double> values_;
  std::size_t stepsAlike_ = 0;
  double valueAlike_ = 0.0;
};

inline double Serie::getValue(const Date& date) const {
  const std::size_t index = stepOf(date) - firstStep_; // a step before the first wraps to beyond the last
  if (index < values_.size())
    return values_[index];
  return index < stepsAlike_ ? valueAlike_ : 0.0;
}

inline void Serie::setValue(const Date& date, double value) {
  const std::size_t step = stepOf(date);
  const std::size_t index = step - firstStep_;
  if (index < values_.size()) {
    values_[index] = value;
  } else if (index == values_.size() && index != 0) { // the next step, as when a series is first filled
    values_.push_back(value);
  } else {
    cover(step, step);
    values_[step - firstStep_] = value;
  }
}
