#pragma once

#include "model/PrioritySettings.h"
#include "telu_qt_export.h"

/// The settings of a demand or drain; the series of a state is its demand in m³/s.
class TELU_QT_EXPORT PriorityDemandSettings : public PrioritySettings {
public:
  explicit PriorityDemandSettings(unsigned numOfStates);
};
