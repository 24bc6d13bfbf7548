#pragma once

#include "elements/common/ElementMap.h"
#include "elements/common/Elements.h"
#include "model/Demand.h"
#include "model/Element.h"
#include "model/Interval.h"

#include <memory>

namespace Lagomare {

/// Whether the demand stands for a drain: at least 1000 m³/s, less a tolerance of 1e-6, at every date of the interval;
/// so does any demand where that is empty. Throws std::invalid_argument "Invalid serie type!" where it has no demand
/// series.
[[nodiscard]] bool isDrain(Demand& demand, const Interval& interval);

/// A drain with the demand's position, id and name, and with series of its own that are empty.
[[nodiscard]] std::shared_ptr<Element> makeDrain(Demand& demand);

/// Asks the loader of each demand, in ascending order of id, whether it is a drain, and has it replaced if
/// so.
template <typename Loader>
void replaceDrains(Loader& loader, const ElementMap& elements) {
  for (const auto& [id, element] : elements) {
    const auto demand = std::dynamic_pointer_cast<Demand>(element);
    if (demand && loader.isDrainDemand(demand))
      loader.transformToDrainDemand(id, demand);
  }
}

} // namespace Lagomare
