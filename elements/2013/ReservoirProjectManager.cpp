#include "elements/2013/ReservoirProjectManager.h"

#include "access/QueryResult.h"
#include "elements/2013/SerieProjectManager.h"
#include "elements/common/Elements.h"
#include "elements/common/Kinds.h"
#include "elements/common/Priorities.h"
#include "elements/common/Reservoirs.h"
#include "elements/common/Series.h"
#include "elements/common/StateSeries.h"
#include "elements/common/States.h"
#include "elements/common/Steps.h"
#include "model/PriorityReservoirSettings.h"
#include "model/Reservoir.h"

namespace Lagomare2013 {

using namespace Lagomare;
using Lagomare::Layout;
using Lagomare::Row;

namespace {

constexpr VolumeColumns volumeColumns{/*initial*/ 6, /*minimum*/ 5, /*maximum*/ 4};
constexpr CurveColumns curveColumns{/*level*/ 1, /*area*/ 2, /*volume*/ 3};

} // namespace

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

void ReservoirProjectManager::validElement() { requireKind(elements, reservoirKind, "ReservoirProjectManager"); }

void ReservoirProjectManager::loadGeneralInfo(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  auto& loader = as<ReservoirProjectManager>(base);
  const auto rows = ask("select " + reservoirGeneralInfoFields + " from " + reservoirGeneralInfoTable, false);
  // Natural flows are loaded even where there are no rows.
  forEachElement<Reservoir>(rows, loader.elements, [&loader](const auto& reservoir, const Row& row) {
    setVolumes(*reservoir, row, volumeColumns);
    loader.loadNodeInfo(reservoir, row);
    setSystemFlag(*reservoir, row, 7, *loader.scenario);
  });
  loader.loadNatFlowSerie();
  finishStep(bar);
}

void ReservoirProjectManager::loadCavInfo(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  loadCurves(ask("select * from " + reservoirCavTable, true), as<ReservoirProjectManager>(base).elements, curveColumns);
  finishStep(bar);
}

void ReservoirProjectManager::loadEtpPrec(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  auto& loader = as<ReservoirProjectManager>(base);
  const auto rows = ask(valuesOf(reservoirEvapTable), false);
  loadNetEvaporation(rows, loader.elements, loader.scenario->getInterval(), 1.0);
  finishStep(bar);
}

void ReservoirProjectManager::loadTargetVolume(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  auto& loader = as<ReservoirProjectManager>(base);
  fillTargets(loader.elements, loader.scenario->getInterval());
  SerieProjectManager::load(targetVolumeSeries, loader.scenario->getInterval(), reservoirTagetVolumeTable,
                            loader.elements, whereEH1);
  finishStep(bar);
}

void ReservoirProjectManager::loadPriority(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  auto& loader = as<ReservoirProjectManager>(base);
  const auto rows = ask(valuesOf(reservoirPriorityTable) + " " + whereEH1, false);
  loadPriorities<PriorityReservoirSettings>(rows, loader.elements, *loader.scenario);
  finishStep(bar);
}

void ReservoirProjectManager::loadPriorityHydrologicalState(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  auto& loader = as<ReservoirProjectManager>(base);
  if (hasDefaultStates(*loader.scenario))
    loadStatePriorities<PriorityReservoirSettings>(ask(valuesOf(reservoirPriorityTable), false), *loader.scenario);
  finishStep(bar);
}

void ReservoirProjectManager::loadTargetVolumeHydrologicalState(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  auto& loader = as<ReservoirProjectManager>(base);
  loadEachState<PriorityReservoirSettings>(*loader.scenario, Layout::Sequence, [](const std::string& state) {
    return askValues(valuesOf(reservoirTagetVolumeTable) + " where EstHidr = " + state, false);
  });
  finishStep(bar);
}

} // namespace Lagomare2013
