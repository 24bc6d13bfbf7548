#pragma once

#include "model/PrioritySettings.h"
#include "telu_qt_export.h"

/// The settings of a reservoir; the series of a state is its target volume, a fraction.
class TELU_QT_EXPORT PriorityReservoirSettings : public PrioritySettings {
public:
  explicit PriorityReservoirSettings(unsigned numOfStates);

  /// Whether the reservoir counts towards the system's hydrological state.
  [[nodiscard]] bool getIsHydrologicalStateSystem() const { return isHydrologicalStateSystem_; }
  void setIsHydrologicalStateSystem(bool counts) { isHydrologicalStateSystem_ = counts; }

private:
  bool isHydrologicalStateSystem_ = false;
};
