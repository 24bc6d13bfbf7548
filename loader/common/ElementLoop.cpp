#include "loader/common/ElementLoop.h"

#include <stdexcept>

void requireReasonableSize(std::size_t elements, const Interval& interval) {
  constexpr std::size_t mostValues = std::size_t{1} << 30U;
  const std::size_t years = interval.isEmpty() ? 0 : interval.getEnd().getYear() - interval.getBegin().getYear() + 1U;
  if (elements * years * 12U > mostValues)
    throw std::length_error("SceneryProjectManager::loadElements: " + std::to_string(elements) + " elements over " +
                            std::to_string(years) + " years are too many values");
}
