#include "tools/check/tables/TwoWayPairs.h"

#include "loader/LagomareProjectLoader.h"
#include "model/ElementFactory.h"
#include "model/ExecutionContinuous.h"
#include "model/Link.h"
#include "model/Node.h"
#include "model/Scenario.h"

#include <deque>
#include <memory>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace LagomareTools {

namespace {

using Ends = std::pair<std::uint32_t, std::uint32_t>;

/// Nothing unless both ends are reservoirs.
std::optional<Ends> endsOf(const LinkRow& link, const Elements& elements) {
  const std::vector<Kind> reservoirs{Kind::reservoir};
  if (!link.upstream || !link.downstream || elements.find(*link.upstream, reservoirs) == nullptr ||
      elements.find(*link.downstream, reservoirs) == nullptr)
    return std::nullopt;
  return Ends{*link.upstream, *link.downstream};
}

/// The reservoirs that links join, with these links.
std::shared_ptr<Scenario> makeScenario(const std::map<std::uint32_t, Ends>& links) {
  auto scenario = std::make_shared<Scenario>(std::make_shared<ExecutionContinuous>(), 0, Interval(), "");
  std::map<std::uint32_t, std::shared_ptr<Node>> nodes;
  for (const auto& [id, ends] : links)
    for (const std::uint32_t end : {ends.first, ends.second})
      nodes[end];
  for (auto& [id, node] : nodes) { // in the import's order, which the fold depends on
    node = std::dynamic_pointer_cast<Node>(ElementFactory::make(ElementType::Reservoir));
    node->bdId = id;
    scenario->addNode(node, 0, id);
  }
  for (const auto& [id, ends] : links) {
    const auto link = std::dynamic_pointer_cast<Link>(ElementFactory::make(ElementType::NaturalLink));
    link->bdId = id;
    link->upstream = nodes.at(ends.first);
    link->downstream = nodes.at(ends.second);
    scenario->addLink(link, 0);
    nodes.at(ends.first)->addDownstream(link);
    nodes.at(ends.second)->addUpstream(link);
  }
  return scenario;
}

} // namespace

std::map<std::uint32_t, std::uint32_t> findTwoWayPartners(const Elements& elements) {
  std::map<std::uint32_t, Ends> links;
  for (const auto& [id, link] : elements.links)
    if (const auto ends = endsOf(link, elements))
      links.emplace(id, *ends);
  const auto scenario = makeScenario(links);
  LagomareProjectLoader::transformBirectionalLinks(scenario);
  std::set<std::uint32_t> left;
  std::map<Ends, std::deque<std::uint32_t>> twoWay; // by their ends
  for (const auto& element : scenario->getElements())
    if (const auto link = std::dynamic_pointer_cast<Link>(element)) {
      left.insert(link->bdId);
      if (link->getIsBidirectional())
        twoWay[links.at(link->bdId)].push_back(link->bdId);
    }
  std::map<std::uint32_t, std::uint32_t> partners;
  for (const auto& [id, ends] : links)
    if (left.count(id) == 0) {
      auto& kept = twoWay.at({ends.second, ends.first});
      partners[id] = kept.front();
      kept.pop_front();
    }
  return partners;
}

} // namespace LagomareTools
