#include "loader/LagomareProjectLoader.h"

#include "elements/common/Kinds.h"
#include "model/CoreServiceManager.h"
#include "model/ElementType.h"
#include "model/ElementsFilter.h"
#include "model/Link.h"
#include "model/Node.h"
#include "model/Scenario.h"

#include <deque>
#include <map>
#include <memory>
#include <set>
#include <utility>
#include <vector>

namespace {

using LinkPtr = std::shared_ptr<Link>;
using Reservoirs = std::vector<std::shared_ptr<Node>>;

Reservoirs reservoirsOf(const Scenario& scenario) {
  Reservoirs reservoirs;
  for (const auto& element : ElementsFilter::filterByType(scenario.getElements(), reservoirTypes))
    reservoirs.push_back(std::dynamic_pointer_cast<Node>(element));
  return reservoirs;
}

bool leadsToReservoir(const Link& link) {
  const auto node = link.downstream.lock();
  return node && reservoirTypes.count(static_cast<ElementType>(node->getElementType()->id)) != 0;
}

/// The links between reservoirs that are no part of a pair yet, by their two ends, in their order. Kept so that no
/// reservoir's links are searched once for each link that leads to it.
class WaitingLinks {
public:
  explicit WaitingLinks(const Reservoirs& reservoirs) {
    for (const auto& reservoir : reservoirs)
      for (const auto& link : reservoir->getDownstreamLinks())
        if (leadsToReservoir(*link))
          waiting_[{reservoir->bdId, link->downstream.lock()->bdId}].push_back(link);
  }

  /// The first one, or an empty pointer.
  LinkPtr take(unsigned upstreamId, unsigned downstreamId) {
    const auto links = waiting_.find({upstreamId, downstreamId});
    if (links == waiting_.end() || links->second.empty())
      return nullptr;
    auto link = links->second.front();
    links->second.pop_front();
    return link;
  }

private:
  std::map<std::pair<unsigned, unsigned>, std::deque<LinkPtr>> waiting_;
};

/// Finds the pairs: the link that stays of each is returned, the other is deleted.
std::vector<LinkPtr> foldPairs(const std::shared_ptr<Scenario>& scenario) {
  const auto reservoirs = reservoirsOf(*scenario);
  WaitingLinks waiting(reservoirs);
  std::vector<LinkPtr> kept;
  std::set<unsigned> met; // all pairs with these are found, and none is made of a link to itself
  for (const auto& reservoir : reservoirs) {
    met.insert(reservoir->bdId);
    const auto links = reservoir->getDownstreamLinks();
    for (const auto& link : links) {
      if (!leadsToReservoir(*link) || met.count(link->downstream.lock()->bdId) != 0)
        continue;
      if (const auto opposite = waiting.take(link->downstream.lock()->bdId, reservoir->bdId)) {
        kept.push_back(link);
        CoreServiceManager::deleteElementNoDatabase(scenario, opposite);
      }
    }
  }
  return kept;
}

} // namespace

void LagomareProjectLoader::transformBirectionalLinks(std::shared_ptr<Scenario> scenario) {
  std::map<std::shared_ptr<Node>, std::set<unsigned>> hiddenLinks; // by upstream node: ids that a node has too
  for (const auto& link : foldPairs(scenario)) {
    const auto upstream = link->upstream.lock();
    CoreServiceManager::changeLinkTypeNoDatabase(link, Lagomare::artificialLinkKind, scenario);
    if (const auto changed = std::dynamic_pointer_cast<Link>(scenario->getElement(link->bdId)))
      changed->setIsBidirectional(true);
    else
      hiddenLinks[upstream].insert(link->bdId);
  }
  for (const auto& [upstream, ids] : hiddenLinks)
    for (const auto& link : upstream->getDownstreamLinks())
      if (ids.count(link->bdId) != 0)
        link->setIsBidirectional(true);
}
