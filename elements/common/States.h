#pragma once

#include "model/PriorityScenario.h"
#include "model/Scenario.h"

namespace Lagomare {

/// The scenario's hydrological states. Throws std::invalid_argument where it is no PriorityScenario.
[[nodiscard]] HydrologicalStateConfiguration& hydrologicalStatesOf(Scenario& scenario);

/// Whether the scenario's states are of the kind "Padrão", the one with priorities per state.
[[nodiscard]] bool hasDefaultStates(Scenario& scenario);

} // namespace Lagomare
