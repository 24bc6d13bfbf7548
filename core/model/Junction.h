#pragma once

#include "model/Node.h"
#include "telu_qt_export.h"

/// A node where waters only meet or part.
class TELU_QT_EXPORT Junction : public Node {
public:
  Junction();
};
