#pragma once

#include "access/Fields.h"
#include "elements/common/Elements.h"
#include "elements/common/Series.h"
#include "elements/common/States.h"

#include <stdexcept>

// What demands and reservoirs have in common: priorities and series per hydrological state. S is the class of
// their settings, PriorityDemandSettings or PriorityReservoirSettings; column 1 of the rows is the priority
// or value.

/// The element's settings. Throws std::invalid_argument "Passed element is not valid for element setting"
/// where it has none or they are not an S.
template <typename S>
[[nodiscard]] S& settingsOf(const Element& element, const Scenario& scenario) {
  const auto settings = std::dynamic_pointer_cast<S>(scenario.getSettingsManager().getSettings(element.bdId));
  if (!settings)
    throw std::invalid_argument("Passed element is not valid for element setting");
  return *settings;
}

/// The priority of each element, from the first row of its id.
template <typename S>
void loadPriorities(const QueryResult& rows, const ElementMap& elements, const Scenario& scenario) {
  forEachElement<Element>(rows, elements, [&scenario](const auto& element, const Row& row) {
    S& settings = settingsOf<S>(*element, scenario); // its error comes before that of the number
    settings.priority = truncatedIntAt(row, 1);
  });
}

/// The priorities of each element per state: row i, from 0, is state i + 1. Ids that the scenario lacks are
/// skipped; rows beyond the last state are converted, so that a bad number in them is seen, and ignored.
template <typename S>
void loadStatePriorities(const QueryResult& rows, const Scenario& scenario) {
  for (const auto& [id, rowsOfId] : rows) {
    const auto element = scenario.getElement(id);
    if (!element)
      continue;
    S& settings = settingsOf<S>(*element, scenario);
    unsigned stateIndex0 = 0;
    for (const Row& row : rowsOfId) {
      const unsigned priority = truncatedUnsignedAt(row, 1);
      if (stateIndex0 < settings.getPrioritySeries().size())
        settings.setPriorityOfPairPrioritySerie(priority, stateIndex0);
      ++stateIndex0;
    }
  }
}

/// The series of each element for one state, from 1, over the scenario's interval. Ids that the scenario
/// lacks are skipped.
template <typename S>
void loadStateSeries(const ValueResult& values, const Scenario& scenario, unsigned state, Layout layout) {
  values.forEachId([&](std::uint32_t id, const ValueColumn& column) {
    if (const auto element = scenario.getElement(id))
      layAsNeeded(column, *settingsOf<S>(*element, scenario).getPrioritySeries().at(state - 1).second,
                  scenario.getInterval(), layout);
  });
}
