#include "elements/2013/LinkProjectManager.h"

#include "access/Fields.h"
#include "access/QueryResult.h"
#include "elements/common/Elements.h"
#include "elements/common/Kinds.h"
#include "elements/common/Links.h"
#include "elements/common/Steps.h"
#include "model/Link.h"

namespace Lagomare2013 {

using namespace Lagomare;
using Lagomare::Row;

const std::string LinkProjectManager::linkGeneralInfoTable = "Tk_Lnk_FEA";
const std::string LinkProjectManager::linkGeneralInfoFields = "UID, Nome, NoIni, NoFim, Coef, Cmin";
const std::string LinkProjectManager::linkTrafficLimitTable = "LgmLnkCmaxSC";
const std::string LinkProjectManager::linkBdIdField1 = "UID";
const std::string LinkProjectManager::linkBdIdField2 = "NumLnk";

void LinkProjectManager::makeLambdas() {
  // The series are filled before the links get their names and their ends.
  steps = {loadTrafficLimit, loadGeneralInfo};
}

void LinkProjectManager::validElement() { requireKind(elements, naturalLinkKind, "LinkProjectManager"); }

void LinkProjectManager::addElementInScenery(std::shared_ptr<Element> element) {
  scenario->addLink(std::dynamic_pointer_cast<Link>(element), 0);
}

void LinkProjectManager::loadTrafficLimit(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  const auto rows = ask("select " + linkBdIdField2 + ", Valor from " + linkTrafficLimitTable + " " + whereEH1, false);
  if (rows.empty())
    return;
  loadFlowLimits(rows, as<LinkProjectManager>(base).elements, as<LinkProjectManager>(base).scenario->getInterval());
  finishStep(bar);
}

void LinkProjectManager::loadGeneralInfo(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  const auto rows = ask("select " + linkGeneralInfoFields + " from " + linkGeneralInfoTable, false);
  if (rows.empty())
    return;
  auto& loader = as<LinkProjectManager>(base);
  forEachElement<Link>(rows, loader.elements, [&loader](const auto& link, const Row& row) {
    loadLink(loader, link, row, {/*upstream*/ 2, /*downstream*/ 3}, *loader.scenario);
    fillLoss(*link, numberAt(row, 4), loader.scenario->getInterval());
  });
  finishStep(bar);
}

} // namespace Lagomare2013
