#pragma once

#include "telu_qt_export.h"

class TELU_QT_EXPORT ScenarioManager {
public:
  /// The id of the next scenario; whoever makes one reads it, then increments it. Not guarded: one thread.
  static unsigned instance;
};
