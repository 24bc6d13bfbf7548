#pragma once

#include "access/ValueResult.h"
#include "elements/common/Series.h"
#include "elements/common/SettingsOf.h"
#include "elements/common/States.h"
#include "model/Scenario.h"

#include <string>

namespace Lagomare {

/// The series of each element for one state, from 1, over the scenario's interval. Ids that the scenario lacks are
/// skipped. S is the class of the elements' settings.
template <typename S>
void loadStateSeries(const ValueResult& values, Scenario& scenario, unsigned state, Layout layout) {
  for (const auto& [id, column] : values) {
    const auto element = scenario.getElement(id);
    if (!element)
      continue;
    S& settings = settingsOf<S>(*element, scenario);
    layAsNeeded(column, *settings.getPrioritySeries().at(state - 1).second, scenario.getInterval(), layout);
  }
}

/// The same for every state in turn, whatever the kind of states: askFor(state) asks for the values of the state with
/// this number.
template <typename S, typename AskFor>
void loadEachState(Scenario& scenario, Layout layout, AskFor askFor) {
  const unsigned numOfStates = hydrologicalStatesOf(scenario).getNumOfStates();
  for (unsigned state = 1; state <= numOfStates; ++state)
    loadStateSeries<S>(askFor(std::to_string(state)), scenario, state, layout);
}

} // namespace Lagomare
