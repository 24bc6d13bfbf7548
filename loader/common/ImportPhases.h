#pragma once

#include "access/Fields.h"
#include "access/QueryResult.h"
#include "loader/ImportStatus.h"
#include "loader/SceneryProjectManagerRet.h"

#include <functional>
#include <memory>

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
  const auto id = settings.begin()->first;
  const auto& rows = settings.begin()->second;
  std::shared_ptr<Scenario> scenario;
  bool hasStates = false;
  const bool isTactical = inRow(settings, id, 0, [&] {
    scenario = Scenery::makeSceneryInstance(Scenery::loadInterval(rows));
    hasStates = wantsStates(rows.front());
    return unsignedAt(rows.front(), tacticalColumn) != 0;
  });
  if (isTactical)
    return {importRefused, nullptr};
  if (hasStates)
    Scenery::loadHydrologicalState(scenario);
  if (!Scenery::loadElements(scenario, progress))
    return {importCancelled, nullptr};
  return {importSucceeded, scenario};
}

} // namespace Lagomare
