#include "loader/common/ElementLoop.h"

#include "elements/common/States.h"

#include <algorithm>
#include <stdexcept>

namespace Lagomare {

namespace {

/// At least as many as a series without values takes of memory.
std::size_t valuesOfSeries(const Interval& interval) {
  constexpr std::size_t least = 32;
  if (interval.isEmpty())
    return least;
  return std::max(least, std::size_t{interval.getEnd().getYear() - interval.getBegin().getYear() + 1U} * 12U);
}

} // namespace

void requireReasonableSize(std::size_t elements, Scenario& scenario) {
  constexpr std::size_t mostValues = std::size_t{1} << 30U;
  const std::size_t series = std::size_t{hydrologicalStatesOf(scenario).getNumOfStates()} + 1U;
  const std::size_t values = valuesOfSeries(scenario.getInterval());
  if (elements > mostValues / series / values)
    throw std::length_error("SceneryProjectManager::loadElements: " + std::to_string(elements) + " elements with " +
                            std::to_string(series) + " series of " + std::to_string(values) +
                            " values each are too many");
}

} // namespace Lagomare
