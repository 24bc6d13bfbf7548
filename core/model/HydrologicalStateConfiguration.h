#pragma once

#include "model/Enum.h"
#include "model/HydrologicalStateType.h"
#include "telu_qt_export.h"

#include <vector>

/// How a scenario's hydrological states are told apart: n boundaries divide the range into n + 1 states,
/// numbered from 1.
class TELU_QT_EXPORT HydrologicalStateConfiguration {
public:
  [[nodiscard]] const Enum<HydrologicalStateType>& getCurrentHydrologicalStateType() const { return type_; }
  void setCurrentHydrologicalStateType(const Enum<HydrologicalStateType>& type) { type_ = type; }

  [[nodiscard]] const std::vector<double>& getXValues() const { return xValues_; }
  void setXValues(const std::vector<double>& boundaries);
  /// 0 until boundaries are set, even if there are none.
  [[nodiscard]] unsigned getNumOfStates() const { return numOfStates_; }

private:
  Enum<HydrologicalStateType> type_ = NoHydrologicalType();
  std::vector<double> xValues_;
  unsigned numOfStates_ = 0;
};
