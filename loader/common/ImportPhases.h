#pragma once

#include "access/Fields.h"
#include "loader/SceneryProjectManagerRet.h"

#include <functional>

namespace Lagomare {

/// The phases of an import, from the answer to the general-settings query on. Scenery is a dialect's scenario loader;
/// wantsStates(row) tells whether the settings ask for hydrological states, and the tactical column refuses the project
/// where it is not 0. The scenario is made, and counted, before that is known.
template <typename Scenery, typename WantsStates>
[[nodiscard]] SceneryProjectManagerRet importScenario(const QueryResult& settings, WantsStates wantsStates,
                                                      std::size_t tacticalColumn,
                                                      const std::function<bool(long, long)>& progress) {
  if (settings.empty())
    return {importInvalid, nullptr};
  const auto& rows = settings.begin()->second;
  const auto scenario = Scenery::makeSceneryInstance(Scenery::loadInterval(rows));
  const bool hasStates = wantsStates(rows.front());
  if (unsignedAt(rows.front(), tacticalColumn) != 0)
    return {importRefused, nullptr};
  if (hasStates)
    Scenery::loadHydrologicalState(scenario);
  if (!Scenery::loadElements(scenario, progress))
    return {importCancelled, nullptr};
  return {importSucceeded, scenario};
}

} // namespace Lagomare
