#pragma once

#include "elements/common/Elements.h"
#include "loader/common/SizeGuard.h"
#include "model/ElementFactory.h"
#include "model/ElementType.h"
#include "model/Scenario.h"
#include "model/TeluCoreProgressBar.h"

#include <functional>
#include <memory>
#include <vector>

namespace Lagomare {

/// Loads the elements of each kind in turn, under one progress bar, with the ids and the loaders that a dialect's two
/// factories make. All ids are asked for before the first loader runs. False where the host asked to stop: the loaders
/// that had not run are skipped.
template <typename BdIdFactory, typename LoaderFactory>
[[nodiscard]] bool loadKinds(const std::vector<ElementType>& kinds, const std::shared_ptr<Scenario>& scenario,
                             const std::function<bool(long, long)>& progress) {
  std::vector<decltype(LoaderFactory::make(kinds.front(), ElementMap(), scenario))> loaders;
  SizeGuard guard(*scenario);
  long steps = 0;
  for (const ElementType kind : kinds) {
    ElementMap elements;
    const auto ids = BdIdFactory::makeVectorOfBdIds(kind);
    guard.add(kind, ids.size());
    for (const unsigned id : ids)
      elements[id] = ElementFactory::make(kind);
    loaders.push_back(LoaderFactory::make(kind, elements, scenario));
    steps += loaders.back()->numOfLambdas();
  }
  TeluCoreProgressBar progressBar(0, static_cast<unsigned>(steps), progress);
  try {
    for (const auto& loader : loaders)
      loader->load(progressBar);
  } catch (const TeluCoreProgressBar::ProgressCancelException&) {
    return false;
  }
  return true;
}

} // namespace Lagomare
