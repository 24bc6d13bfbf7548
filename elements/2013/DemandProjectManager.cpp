#include "elements/2013/DemandProjectManager.h"

#include "elements/2013/SerieProjectManager.h"
#include "elements/common/Demands.h"
#include "elements/common/Elements.h"
#include "elements/common/Kinds.h"
#include "elements/common/Nodes.h"
#include "elements/common/Priorities.h"
#include "elements/common/Series.h"
#include "elements/common/StateSeries.h"
#include "elements/common/States.h"
#include "elements/common/Steps.h"
#include "model/PriorityDemandSettings.h"

namespace Lagomare2013 {

using namespace Lagomare;
using Lagomare::Layout;

const std::string DemandProjectManager::demandDemandTable = "LgmDemDemSC";
const std::string DemandProjectManager::demandPriorityTable = "LgmDemPrior";
const std::string DemandProjectManager::demandGeneralInfoFields = "NumPonto, Nome, Coord_X, Coord_Y";
const std::string DemandProjectManager::demandGeneralInfoTable = "Tk_Dem_FEA";

void DemandProjectManager::makeLambdas() {
  // Drains take the places of demands before these enter the scenario, and before settings are looked up.
  steps = {loadDemandSerie, loadGeneralInfo, loadPriority, loadPriorityHydrologicalState,
           loadWaterDemandHydrologicalState};
}

void DemandProjectManager::validElement() { requireKind(elements, humanDemandKind, "DemandProjectManager"); }

bool DemandProjectManager::isDrainDemand(std::shared_ptr<Demand> demand) {
  return isDrain(*demand, scenario->getInterval());
}

void DemandProjectManager::loadDemandSerie(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  auto& loader = as<DemandProjectManager>(base);
  SerieProjectManager::load(demandSeries, loader.scenario->getInterval(), demandDemandTable, loader.elements, whereEH1);
  replaceDrains(loader, loader.elements);
  finishStep(bar);
}

void DemandProjectManager::loadGeneralInfo(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  auto& loader = as<DemandProjectManager>(base);
  const auto rows = ask("select " + demandGeneralInfoFields + " from " + demandGeneralInfoTable, false);
  if (rows.empty())
    return;
  loadNodes<Demand>(rows, loader.elements, loader);
  finishStep(bar);
}

void DemandProjectManager::loadPriority(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  auto& loader = as<DemandProjectManager>(base);
  const auto rows = ask(valuesOf(demandPriorityTable) + " " + whereEH1, false);
  loadPriorities<PriorityDemandSettings>(rows, loader.elements, *loader.scenario);
  finishStep(bar);
}

void DemandProjectManager::loadPriorityHydrologicalState(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  auto& loader = as<DemandProjectManager>(base);
  if (hasDefaultStates(*loader.scenario))
    loadStatePriorities<PriorityDemandSettings>(ask(valuesOf(demandPriorityTable), false), *loader.scenario);
  finishStep(bar);
}

void DemandProjectManager::loadWaterDemandHydrologicalState(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  auto& loader = as<DemandProjectManager>(base);
  loadEachState<PriorityDemandSettings>(*loader.scenario, Layout::Sequence, [](const std::string& state) {
    return askValues(valuesOf(demandDemandTable) + " where EstHidr = " + state, false);
  });
  finishStep(bar);
}

void DemandProjectManager::transformToDrainDemand(unsigned id, std::shared_ptr<Demand> demand) {
  elements[id] = makeDrain(*demand);
}

} // namespace Lagomare2013
