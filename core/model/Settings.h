#pragma once

#include "telu_qt_export.h"

/// What a scenario keeps about one element beside the element itself.
class TELU_QT_EXPORT Settings {
public:
  virtual ~Settings();
};
