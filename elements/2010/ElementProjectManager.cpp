#include "elements/2010/ElementProjectManager.h"

#include "elements/2010/SerieProjectManager.h"
#include "elements/common/Elements.h"
#include "model/Scenario.h"
#include "model/TeluCoreProgressBar.h"

#include <utility>

namespace Lagomare2010 {

using namespace Lagomare;

const std::string ElementProjectManager::generalInfoTable = "Pontos";
const std::string ElementProjectManager::whereEH1 = "where EstHidr = 1";
const std::string ElementProjectManager::natFlowTable = "Vazao";

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

void ElementProjectManager::loadNatFlowSerie() { SerieProjectManager::loadNatFlow(scenario->getInterval(), elements); }

} // namespace Lagomare2010
