#pragma once

#include "model/ExecutionMethod.h"
#include "telu_qt_export.h"

/// One run over the whole interval, without windows.
class TELU_QT_EXPORT ExecutionContinuous : public ExecutionMethod {
public:
  ExecutionContinuous();
};
