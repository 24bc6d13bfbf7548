#include "loader/common/ElementLoop.h"

#include "model/PriorityScenario.h"

#include <algorithm>
#include <stdexcept>

namespace Lagomare {

namespace {

/// Of one series; at least as many as a series without values takes of memory.
std::size_t valuesOver(const Interval& interval) {
  constexpr std::size_t least = 32;
  if (!(interval.getBegin() <= interval.getEnd()))
    return least;
  return std::max(least, (std::size_t{interval.getEnd().getYear()} - interval.getBegin().getYear() + 1U) * 12U);
}

std::size_t statesOf(ElementType kind, const Scenario& scenario) {
  const auto* const priorityScenario = dynamic_cast<const PriorityScenario*>(&scenario);
  if (priorityScenario == nullptr || reservoirAndDemandTypes.count(kind) == 0)
    return 0;
  return priorityScenario->getHydrologicalStateConfiguration()->getNumOfStates();
}

} // namespace

void requireReasonableSize(std::size_t elements, ElementType kind, const Scenario& scenario) {
  constexpr std::size_t mostValues = std::size_t{1} << 30U;
  const std::size_t states = statesOf(kind, scenario);
  if (elements > mostValues / (states + 1U) / valuesOver(scenario.getInterval()))
    throw std::length_error("SceneryProjectManager::loadElements: " + std::to_string(elements) + " elements with " +
                            std::to_string(states) + " hydrological states are too many for so long a period");
}

} // namespace Lagomare
