#include "elements/2013/ReservoirProjectManager.h"

#include "elements/2013/SerieProjectManager.h"
#include "elements/common/Reservoirs.h"
#include "elements/common/Steps.h"

namespace Lagomare2013 {

const std::string ReservoirProjectManager::reservoirGeneralInfoTable = "Tk_Res_FEA";
const std::string ReservoirProjectManager::reservoirGeneralInfoFields =
    "NumPonto, Nome, Coord_X, Coord_Y, VolMax, VolMin, VolIni, Subsist";
const std::string ReservoirProjectManager::reservoirCavTable = "LgmResCAV";
const std::string ReservoirProjectManager::reservoirEvapTable = "LgmResEvap";
const std::string ReservoirProjectManager::reservoirTagetVolumeTable = "LgmResVmetaSC";
const std::string ReservoirProjectManager::reservoirPriorityTable = "LgmResPrior";

void ReservoirProjectManager::makeLambdas() {
  // The nodes enter the scenario first: settings are made for what it holds.
  steps = {loadGeneralInfo,
           loadCavInfo,
           loadEtpPrec,
           loadTargetVolume,
           loadPriority,
           loadPriorityHydrologicalState,
           loadTargetVolumeHydrologicalState};
}

void ReservoirProjectManager::validElement() {
  requireKind(elements, ElementType::Reservoir, "ReservoirProjectManager::validElement(): invalid element type");
}

void ReservoirProjectManager::loadGeneralInfo(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  auto& loader = dynamic_cast<ReservoirProjectManager&>(*base);
  const auto rows = ask("select " + reservoirGeneralInfoFields + " from " + reservoirGeneralInfoTable, false);
  // Natural flows are loaded even where there are no rows.
  forEachElement<Reservoir>(rows, loader.elements, [&loader](const auto& reservoir, const Row& row) {
    setVolumes(*reservoir, row, {6, 5, 4});
    loader.loadNodeInfo(reservoir, row);
    setSystemFlag(*reservoir, row, 7, *loader.scenario);
  });
  loader.loadNatFlowSerie();
  finishStep(bar);
}

void ReservoirProjectManager::loadCavInfo(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  const auto rows = ask("select * from " + reservoirCavTable, true);
  loadCurves(rows, dynamic_cast<ReservoirProjectManager&>(*base).elements, {1, 2, 3});
  finishStep(bar);
}

void ReservoirProjectManager::loadEtpPrec(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  auto& loader = dynamic_cast<ReservoirProjectManager&>(*base);
  const auto rows = ask(valuesOf(reservoirEvapTable), false);
  loadNetEvaporation(rows, loader.elements, loader.scenario->getInterval(), 1.0);
  finishStep(bar);
}

void ReservoirProjectManager::loadTargetVolume(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  auto& loader = dynamic_cast<ReservoirProjectManager&>(*base);
  fillTargets(loader.elements, loader.scenario->getInterval());
  SerieProjectManager::load(SerieType::TargetVolume, loader.scenario->getInterval(), reservoirTagetVolumeTable,
                            loader.elements, whereEH1);
  finishStep(bar);
}

void ReservoirProjectManager::loadPriority(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  auto& loader = dynamic_cast<ReservoirProjectManager&>(*base);
  const auto rows = ask(valuesOf(reservoirPriorityTable) + " " + whereEH1, false);
  loadPriorities<PriorityReservoirSettings>(rows, loader.elements, *loader.scenario);
  finishStep(bar);
}

void ReservoirProjectManager::loadPriorityHydrologicalState(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  auto& loader = dynamic_cast<ReservoirProjectManager&>(*base);
  if (hasDefaultStates(*loader.scenario))
    loadStatePriorities<PriorityReservoirSettings>(ask(valuesOf(reservoirPriorityTable), false), *loader.scenario);
  finishStep(bar);
}

void ReservoirProjectManager::loadTargetVolumeHydrologicalState(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  auto& loader = dynamic_cast<ReservoirProjectManager&>(*base);
  for (unsigned state = 1; state <= hydrologicalStatesOf(*loader.scenario).getNumOfStates(); ++state) {
    const auto values =
        askValues(valuesOf(reservoirTagetVolumeTable) + " where EstHidr = " + std::to_string(state), false);
    loadStateSeries<PriorityReservoirSettings>(values, *loader.scenario, state, Layout::Sequence);
  }
  finishStep(bar);
}

} // namespace Lagomare2013
