#pragma once

#include "model/Date.h"
#include "model/EnumPeriodicity.h"
#include "telu_qt_export.h"

/// The steps from one date to another, both inclusive. A default interval is empty: it ends before it begins.
class TELU_QT_EXPORT Interval {
public:
  Interval();
  Interval(const Date& begin, const Date& end, const EnumPeriodicity& periodicity);

  [[nodiscard]] const Date& getBegin() const { return begin_; }
  [[nodiscard]] const Date& getEnd() const { return end_; }
  [[nodiscard]] const EnumPeriodicity& getPeriodicity() const { return periodicity_; }
  [[nodiscard]] bool isEmpty() const { return end_ < begin_; }

private:
  Date begin_;
  Date end_;
  EnumPeriodicity periodicity_;
};
