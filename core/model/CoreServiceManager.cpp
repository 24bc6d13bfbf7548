#include "model/CoreServiceManager.h"

#include "model/EnumElementTypeFactory.h"
#include "model/Link.h"
#include "model/Node.h"
#include "model/Scenario.h"

#include <list>
#include <stdexcept>

namespace {

void detach(const std::shared_ptr<Link>& link) {
  if (const auto node = link->upstream.lock())
    node->removeDownstream(link);
  if (const auto node = link->downstream.lock())
    node->removeUpstream(link);
}

void deleteLinks(const std::shared_ptr<Scenario>& scenario, const std::list<std::shared_ptr<Link>> links) {
  for (const auto& link : links) {
    scenario->removeElement(link);
    detach(link);
  }
}

std::shared_ptr<Link> makeSuccessor(const Link& link, ElementType type) {
  auto successor = std::make_shared<Link>(EnumElementTypeFactory::makeElementType(type));
  successor->bdId = link.bdId;
  successor->setName(link.getName());
  successor->shareSeries(link);
  successor->setIsBidirectional(link.getIsBidirectional());
  successor->upstream = link.upstream;
  successor->downstream = link.downstream;
  return successor;
}

} // namespace

void CoreServiceManager::deleteElementNoDatabase(std::shared_ptr<Scenario> scenario, std::shared_ptr<Element> element) {
  if (!scenario->removeElement(element))
    return;
  if (const auto link = std::dynamic_pointer_cast<Link>(element)) {
    detach(link);
  } else if (const auto node = std::dynamic_pointer_cast<Node>(element)) {
    deleteLinks(scenario, node->getUpstreamLinks());
    deleteLinks(scenario, node->getDownstreamLinks());
    scenario->getSettingsManager().removeSettings(node->bdId);
  }
}

std::shared_ptr<Link> CoreServiceManager::changeLinkTypeNoDatabase(std::shared_ptr<Link> link, ElementType type,
                                                                   std::shared_ptr<Scenario> scenario) {
  if (linkTypes.count(type) == 0)
    throw std::invalid_argument("CoreServiceManager::changeLinkTypeNoDatabase: invalid element type");
  auto successor = makeSuccessor(*link, type);
  if (!scenario->replaceLink(link, successor))
    throw std::invalid_argument("CoreServiceManager::changeLinkTypeNoDatabase: the link is not in the scenario");
  for (const auto& end : {link->upstream.lock(), link->downstream.lock()})
    if (end)
      end->replaceLink(link, successor);
  return successor;
}
