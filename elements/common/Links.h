#pragma once

#include "access/QueryResult.h"
#include "elements/common/ElementMap.h"
#include "elements/common/Elements.h"
#include "model/Interval.h"
#include "model/Link.h"
#include "model/Scenario.h"

#include <memory>

namespace Lagomare {

/// The flow limit of each link, from column 1: one constant over the interval. Throws as serieOf and numberAt
/// do.
void loadFlowLimits(const QueryResult& rows, const ElementMap& elements, const Interval& interval);

/// Fills the loss series, in percent, over the interval with a fraction.
void fillLoss(Link& link, double fraction, const Interval& interval);

/// Where a link's row holds the ids of its two ends.
struct EndColumns {
  std::size_t upstream;
  std::size_t downstream;
};

/// Joins a link of the scenario to its upstream, then to its downstream node. Throws std::runtime_error
/// "LinkProjectManager::loadGeneralInfo: invalid upStream", or the same with "downStream", where the scenario has no
/// such node.
void wire(const std::shared_ptr<Link>& link, const Row& row, const EndColumns& columns, const Scenario& scenario);

/// Has the loader put a link into the scenario, then joins it to its ends.
template <typename Loader>
void loadLink(Loader& loader, const std::shared_ptr<Link>& link, const Row& row, const EndColumns& columns,
              const Scenario& scenario) {
  loader.loadElementInfo(link, row);
  wire(link, row, columns, scenario);
}

} // namespace Lagomare
