#include "Network.h"

#include "model/ElementFactory.h"
#include "model/ExecutionContinuous.h"
#include "model/Link.h"
#include "model/Node.h"

std::shared_ptr<Node> Network::node(ElementType type, unsigned id) {
  const auto node = std::dynamic_pointer_cast<Node>(ElementFactory::make(type));
  node->bdId = id;
  scenario->addNode(node, 0, id);
  return node;
}

std::shared_ptr<Link> Network::link(unsigned id, unsigned upstreamId, unsigned downstreamId) {
  const auto link = std::dynamic_pointer_cast<Link>(ElementFactory::make(ElementType::NaturalLink));
  link->bdId = id;
  scenario->addLink(link, 0);
  const auto upstream = std::dynamic_pointer_cast<Node>(scenario->getElement(upstreamId));
  const auto downstream = std::dynamic_pointer_cast<Node>(scenario->getElement(downstreamId));
  link->upstream = upstream;
  link->downstream = downstream;
  upstream->addDownstream(link);
  downstream->addUpstream(link);
  return link;
}

std::shared_ptr<PriorityScenario> Network::make() {
  const Interval interval(Date(2000, 1, 1), Date(2001, 12, 1), MonthlyType());
  return std::make_shared<PriorityScenario>(std::make_shared<ExecutionContinuous>(), 1, interval, "Network");
}
