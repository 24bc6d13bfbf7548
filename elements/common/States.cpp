#include "elements/common/States.h"

#include <stdexcept>

namespace Lagomare {

HydrologicalStateConfiguration& hydrologicalStatesOf(Scenario& scenario) {
  auto* const priorityScenario = dynamic_cast<PriorityScenario*>(&scenario);
  if (priorityScenario == nullptr)
    throw std::invalid_argument("Lagomare::hydrologicalStatesOf: the scenario is no PriorityScenario");
  return *priorityScenario->getHydrologicalStateConfiguration();
}

bool hasDefaultStates(Scenario& scenario) {
  return hydrologicalStatesOf(scenario).getCurrentHydrologicalStateType().id == DefaultHydrologicalType().id;
}

} // namespace Lagomare
