#include "elements/common/States.h"

#include <stdexcept>

HydrologicalStateConfiguration& hydrologicalStatesOf(Scenario& scenario) {
  auto* const priorityScenario = dynamic_cast<PriorityScenario*>(&scenario);
  if (priorityScenario == nullptr)
    throw std::invalid_argument("the scenario has no hydrological states: it is no PriorityScenario");
  return *priorityScenario->getHydrologicalStateConfiguration();
}

bool hasDefaultStates(Scenario& scenario) {
  return hydrologicalStatesOf(scenario).getCurrentHydrologicalStateType().id == DefaultHydrologicalType().id;
}
