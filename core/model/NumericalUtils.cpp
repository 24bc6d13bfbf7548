#include "model/NumericalUtils.h"

#include <cmath>

double NumericalUtils::subtractDoubles(const double& a, const double& b, const double& tolerance) {
  const double difference = a - b;
  return std::fabs(difference) < tolerance ? 0.0 : difference;
}
