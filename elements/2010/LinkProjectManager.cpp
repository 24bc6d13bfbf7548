#include "elements/2010/LinkProjectManager.h"

#include "access/Fields.h"
#include "elements/common/Links.h"
#include "elements/common/Steps.h"

namespace Lagomare2010 {

const std::string LinkProjectManager::linkGeneralInfoTable = "Links";
const std::string LinkProjectManager::linkDatas = "LinksDados";
const std::string LinkProjectManager::linkTrafficLimitTable = "LinksCmaxEH";

void LinkProjectManager::makeLambdas() { steps = {loadTrafficLimit, loadLinkDatas, loadGeneralInfo}; }

void LinkProjectManager::validElement() {
  requireKind(elements, ElementType::NaturalLink, "LinkProjectManager::validElement(): invalid element type");
}

void LinkProjectManager::addElementInScenery(std::shared_ptr<Element> element) {
  scenario->addLink(std::dynamic_pointer_cast<Link>(element), 0);
}

unsigned LinkProjectManager::getElementType() { return 0; }

void LinkProjectManager::loadTrafficLimit(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  const auto rows = ask("select Lnk, Cmax from " + linkTrafficLimitTable + " " + whereEH1, false);
  if (rows.empty())
    return;
  auto& loader = dynamic_cast<LinkProjectManager&>(*base);
  loadFlowLimits(rows, loader.elements, loader.scenario->getInterval());
  finishStep(bar);
}

void LinkProjectManager::loadLinkDatas(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  const auto rows = ask("select * from " + linkDatas, false);
  if (rows.empty())
    return;
  auto& loader = dynamic_cast<LinkProjectManager&>(*base);
  forEachElement<Link>(rows, loader.elements, [&loader](const auto& link, const Row& row) {
    fillLoss(*link, numberAt(row, 3), loader.scenario->getInterval());
  });
  finishStep(bar);
}

void LinkProjectManager::loadGeneralInfo(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  const auto rows = ask("select * from " + linkGeneralInfoTable, false);
  if (rows.empty())
    return;
  auto& loader = dynamic_cast<LinkProjectManager&>(*base);
  forEachElement<Link>(rows, loader.elements, [&loader](const auto& link, const Row& row) {
    loader.loadElementInfo(link, row);
    wire(link, row, *loader.scenario);
  });
  finishStep(bar);
}

} // namespace Lagomare2010
