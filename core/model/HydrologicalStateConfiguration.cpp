#include "model/HydrologicalStateConfiguration.h"

void HydrologicalStateConfiguration::setXValues(const std::vector<double>& boundaries) {
  xValues_ = boundaries;
  numOfStates_ = static_cast<unsigned>(boundaries.size()) + 1U;
}
