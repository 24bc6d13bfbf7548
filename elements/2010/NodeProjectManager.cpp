#include "elements/2010/NodeProjectManager.h"

#include "elements/common/Nodes.h"
#include "elements/common/Steps.h"
#include "model/Scenario.h"

namespace Lagomare2010 {

using namespace Lagomare;

void NodeProjectManager::addElementInScenery(std::shared_ptr<Element> element) {
  scenario->addNode(std::dynamic_pointer_cast<Node>(element), 0, element->bdId);
}

void NodeProjectManager::loadGeneralInfo(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  auto& loader = as<NodeProjectManager>(base);
  const auto rows =
      ask("select * from " + generalInfoTable + " where Tipo = " + std::to_string(loader.getElementType()), false);
  if (rows.empty())
    return;
  loadNodes<Node>(rows, loader.elements, loader);
  finishStep(bar);
}

void NodeProjectManager::loadNodeInfo(std::shared_ptr<Node> node, const std::vector<std::string>& row) {
  locate(*node, row, 3, 4);
  loadElementInfo(node, row);
}

} // namespace Lagomare2010
