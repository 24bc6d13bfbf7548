#include "elements/2013/ElementProjectManager.h"

#include "access/LagomareProjectManager.h"
#include "elements/2013/SerieProjectManager.h"
#include "elements/common/Elements.h"
#include "elements/common/Kinds.h"
#include "model/Scenario.h"
#include "model/TeluCoreProgressBar.h"

#include <utility>

namespace Lagomare2013 {

using namespace Lagomare;

const std::string ElementProjectManager::whereEH1 = "where EstHidr = 1";
const std::string ElementProjectManager::natFlowTable = "LgmVazNat";

ElementProjectManager::ElementProjectManager(const ElementMap& elementsById, std::shared_ptr<Scenario> scenarioToFill)
    : elements(elementsById), scenario(std::move(scenarioToFill)) {}

ElementProjectManager::~ElementProjectManager() = default;

void ElementProjectManager::load(TeluCoreProgressBar& bar) {
  validElement();
  if (steps.empty())
    makeLambdas();
  const auto registered = steps; // a step may register steps anew
  for (const auto& step : registered)
    step(this, bar);
}

long ElementProjectManager::numOfLambdas() {
  if (steps.empty())
    makeLambdas();
  return static_cast<long>(steps.size());
}

void ElementProjectManager::loadElementInfo(std::shared_ptr<Element> element, const std::vector<std::string>& row) {
  identify(*element, row);
  addElementInScenery(element);
}

void ElementProjectManager::loadNatFlowSerie() {
  SerieProjectManager::load(naturalFlowSeries, scenario->getInterval(), natFlowTable, elements, "");
}

std::string ElementProjectManager::valuesOf(const std::string& table) {
  return "select " + LagomareProjectManager::elementBdIdField1 + ", Valor from " + table;
}

} // namespace Lagomare2013
