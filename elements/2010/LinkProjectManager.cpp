#include "elements/2010/LinkProjectManager.h"

#include "access/Fields.h"
#include "access/QueryResult.h"
#include "elements/common/Elements.h"
#include "elements/common/Kinds.h"
#include "elements/common/Links.h"
#include "elements/common/Steps.h"
#include "model/Link.h"

namespace Lagomare2010 {

using namespace Lagomare;
using Lagomare::Row;

const std::string LinkProjectManager::linkGeneralInfoTable = "Links";
const std::string LinkProjectManager::linkDatas = "LinksDados";
const std::string LinkProjectManager::linkTrafficLimitTable = "LinksCmaxEH";

void LinkProjectManager::makeLambdas() {
  // The series are filled before the links get their names and their ends.
  steps = {loadTrafficLimit, loadLinkDatas, loadGeneralInfo};
}

void LinkProjectManager::validElement() { requireKind(elements, naturalLinkKind, "LinkProjectManager"); }

void LinkProjectManager::addElementInScenery(std::shared_ptr<Element> element) {
  scenario->addLink(std::dynamic_pointer_cast<Link>(element), 0);
}

unsigned LinkProjectManager::getElementType() { return 0; }

void LinkProjectManager::loadTrafficLimit(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  const auto rows = ask("select Lnk, Cmax from " + linkTrafficLimitTable + " " + whereEH1, false);
  if (rows.empty())
    return;
  loadFlowLimits(rows, as<LinkProjectManager>(base).elements, as<LinkProjectManager>(base).scenario->getInterval());
  finishStep(bar);
}

void LinkProjectManager::loadLinkDatas(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  const auto rows = ask("select * from " + linkDatas, false);
  if (rows.empty())
    return;
  auto& loader = as<LinkProjectManager>(base);
  forEachElement<Link>(rows, loader.elements, [&loader](const auto& link, const Row& row) {
    fillLoss(*link, numberAt(row, 3), loader.scenario->getInterval());
  });
  finishStep(bar);
}

void LinkProjectManager::loadGeneralInfo(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  const auto rows = ask("select * from " + linkGeneralInfoTable, false);
  if (rows.empty())
    return;
  auto& loader = as<LinkProjectManager>(base);
  forEachElement<Link>(rows, loader.elements, [&loader](const auto& link, const Row& row) {
    loadLink(loader, link, row, {/*upstream*/ 2, /*downstream*/ 3}, *loader.scenario);
  });
  finishStep(bar);
}

} // namespace Lagomare2010
