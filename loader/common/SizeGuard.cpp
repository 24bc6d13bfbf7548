#include "loader/common/SizeGuard.h"

#include "elements/common/States.h"
#include "model/Element.h"
#include "model/ElementFactory.h"
#include "model/Interval.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace Lagomare {

namespace {

std::size_t valuesOver(const Interval& interval) {
  constexpr std::size_t least = 32;
  Date begin = interval.getBegin();
  Date end = interval.getEnd();
  return begin <= end ? std::max(least, (std::size_t{end.getYear()} - begin.getYear() + 1U) * 12U) : least;
}

} // namespace

SizeGuard::SizeGuard(Scenario& scenario)
    : valuesPerSerie_(valuesOver(scenario.getInterval())), states_(hydrologicalStatesOf(scenario).getNumOfStates()) {}

void SizeGuard::add(ElementType kind, std::size_t elements) {
  const std::size_t ownSeries = ElementFactory::make(kind)->getVectorOfSeries(0).size();
  const std::size_t stateSeries = reservoirAndDemandTypes.count(kind) == 0 ? 0 : states_;
  const std::size_t valuesPerElement = std::max<std::size_t>(1, ownSeries + stateSeries) * valuesPerSerie_;
  elements_ += elements;
  if (elements > valuesLeft_ / valuesPerElement)
    throw std::length_error("SceneryProjectManager::loadElements: " + std::to_string(elements_) + " elements with " +
                            std::to_string(states_) + " hydrological states are too many for so long a period");
  valuesLeft_ -= elements * valuesPerElement;
}

} // namespace Lagomare
