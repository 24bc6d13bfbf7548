#include "model/Serie.h"

#include <algorithm>

Serie::Serie(const Interval& interval, const Enum<SerieType>& type, const Enum<Unit>& unit)
    : interval_(interval), type_(type), unit_(unit) {}

void Serie::setInterval(const Interval& interval) {
  interval_ = interval;
  if (!values_.empty() && !interval.isEmpty()) {
    cover(stepOf(interval.getBegin()), stepOf(interval.getEnd()));
    values_.shrink_to_fit();
  }
}

void Serie::fill(double value) { fill(value, interval_); }

void Serie::fill(double value, const Interval& interval) {
  if (interval_.isEmpty())
    interval_ = interval;
  if (interval.isEmpty())
    return;
  const std::size_t firstStep = stepOf(interval.getBegin());
  const std::size_t lastStep = stepOf(interval.getEnd());
  const bool isAllCovered = firstStep <= firstStep_ && firstStep_ + numOfSteps() <= lastStep + 1;
  if (numOfSteps() == 0 || isAllCovered) {
    std::vector<double>().swap(values_);
    firstStep_ = firstStep;
    stepsAlike_ = lastStep - firstStep + 1;
    valueAlike_ = value;
    return;
  }
  cover(firstStep, lastStep);
  const auto first = values_.begin() + static_cast<std::ptrdiff_t>(firstStep - firstStep_);
  std::fill(first, first + static_cast<std::ptrdiff_t>(lastStep - firstStep + 1), value);
}

/// Widens the values, with 0.0, until they hold both steps. To the front they at least double, so that writing
/// backwards in time costs no more than forwards.
void Serie::cover(std::size_t firstStep, std::size_t lastStep) {
  values_.resize(numOfSteps(), valueAlike_);
  stepsAlike_ = 0;
  if (values_.empty())
    firstStep_ = firstStep;
  if (firstStep < firstStep_) {
    const std::size_t room = std::min(values_.size(), firstStep_);
    const std::size_t steps = std::max(firstStep_ - firstStep, room);
    values_.insert(values_.begin(), steps, 0.0);
    firstStep_ -= steps;
  }
  if (lastStep - firstStep_ >= values_.size())
    values_.resize(lastStep - firstStep_ + 1, 0.0);
}
