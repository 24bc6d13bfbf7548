#pragma once

#include "access/Fields.h"
#include "access/QueryResult.h"
#include "elements/common/ElementMap.h"
#include "elements/common/Elements.h"
#include "elements/common/SettingsOf.h"
#include "elements/common/States.h"
#include "model/Element.h"
#include "model/Scenario.h"

namespace Lagomare {

// The priorities of demands and reservoirs, column 1 of the rows. S is the class of their settings:
// PriorityDemandSettings or PriorityReservoirSettings.

/// The priority of each element, truncated, from the first row of its id.
template <typename S>
void loadPriorities(const QueryResult& rows, const ElementMap& elements, Scenario& scenario) {
  forEachElement<Element>(rows, elements, [&scenario](const auto& element, const Row& row) {
    S& settings = settingsOf<S>(*element, scenario); // its error comes before that of the number
    settings.priority = truncatedIntAt(row, 1);
  });
}

/// The priorities of each element per state, truncated: row i, from 0, is state i + 1. Ids that the scenario lacks are
/// skipped; rows beyond the last state are converted, so that a bad number in them is seen, and ignored.
template <typename S>
void loadStatePriorities(const QueryResult& rows, Scenario& scenario) {
  for (const auto& [id, rowsOfId] : rows) {
    const auto element = scenario.getElement(id);
    if (!element)
      continue;
    S& settings = settingsOf<S>(*element, scenario);
    for (unsigned stateIndex0 = 0; stateIndex0 < rowsOfId.size(); ++stateIndex0) {
      const Row& row = rowsOfId[stateIndex0];
      const unsigned priority = inRow(rows, id, stateIndex0, [&row] { return truncatedUnsignedAt(row, 1); });
      if (stateIndex0 < settings.getPrioritySeries().size())
        settings.setPriorityOfPairPrioritySerie(priority, stateIndex0);
    }
  }
}

} // namespace Lagomare
