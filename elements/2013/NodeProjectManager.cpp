#include "elements/2013/NodeProjectManager.h"

#include "elements/common/Nodes.h"
#include "model/Scenario.h"

namespace Lagomare2013 {

using namespace Lagomare;

void NodeProjectManager::addElementInScenery(std::shared_ptr<Element> element) {
  scenario->addNode(std::dynamic_pointer_cast<Node>(element), 0, element->bdId);
}

void NodeProjectManager::loadNodeInfo(std::shared_ptr<Node> node, const std::vector<std::string>& row) {
  locate(*node, row, 2, 3);
  loadElementInfo(node, row);
}

} // namespace Lagomare2013
