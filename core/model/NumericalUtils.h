#pragma once

#include "telu_qt_export.h"

class TELU_QT_EXPORT NumericalUtils {
public:
  /// a − b, or 0.0 where its magnitude is below the tolerance. What is not a number stays so.
  [[nodiscard]] static double subtractDoubles(const double& a, const double& b, const double& tolerance);
};
