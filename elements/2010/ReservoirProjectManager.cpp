#include "elements/2010/ReservoirProjectManager.h"

#include "access/QueryResult.h"
#include "elements/2010/SerieProjectManager.h"
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

namespace Lagomare2010 {

using namespace Lagomare;
using Lagomare::Layout;
using Lagomare::Row;

namespace {

constexpr VolumeColumns volumeColumns{/*initial*/ 3, /*minimum*/ 2, /*maximum*/ 1};
constexpr CurveColumns curveColumns{/*level*/ 3, /*area*/ 1, /*volume*/ 2};

} // namespace

const std::string ReservoirProjectManager::reservoirVolumesTable = "Res";
const std::string ReservoirProjectManager::reservoirIsHydrologicalSystem = "ResSubsist";
const std::string ReservoirProjectManager::reservoirCavTable = "ResAVN";
const std::string ReservoirProjectManager::reservoirEvapTable = "ResEvap";
const std::string ReservoirProjectManager::reservoirTagetVolumeTable = "ResVmetaEH";
const std::string ReservoirProjectManager::reservoirPriorityTable = "ResPriorEH";

void ReservoirProjectManager::makeLambdas() {
  // The nodes enter the scenario first: settings are made for what it holds.
  steps = {NodeProjectManager::loadGeneralInfo,
           loadVolumes,
           loadIsHydrologicalSystem,
           loadCavInfo,
           loadEtpPrec,
           loadTargetVolume,
           loadPriority,
           loadPriorityHydrologicalState,
           loadTargetVolumeHydrologicalState};
}

void ReservoirProjectManager::validElement() { requireKind(elements, reservoirKind, "ReservoirProjectManager"); }

unsigned ReservoirProjectManager::getElementType() { return 2; }

void ReservoirProjectManager::loadVolumes(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  auto& loader = as<ReservoirProjectManager>(base);
  const auto rows = ask("select * from " + reservoirVolumesTable, false);
  if (rows.empty())
    return;
  forEachElement<Reservoir>(rows, loader.elements,
                            [](const auto& reservoir, const Row& row) { setVolumes(*reservoir, row, volumeColumns); });
  finishStep(bar);
}

void ReservoirProjectManager::loadIsHydrologicalSystem(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  auto& loader = as<ReservoirProjectManager>(base);
  const auto rows = ask("select * from " + reservoirIsHydrologicalSystem, false);
  if (rows.empty())
    return;
  forEachElement<Reservoir>(rows, loader.elements, [&loader](const auto& reservoir, const Row& row) {
    setSystemFlag(*reservoir, row, 1, *loader.scenario);
  });
  finishStep(bar);
}

void ReservoirProjectManager::loadCavInfo(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  loadCurves(ask("select * from " + reservoirCavTable, true), as<ReservoirProjectManager>(base).elements, curveColumns);
  finishStep(bar);
}

void ReservoirProjectManager::loadEtpPrec(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  constexpr double mmPerMetre = 1000.0;
  auto& loader = as<ReservoirProjectManager>(base);
  const auto rows = ask("select Res, Evap from " + reservoirEvapTable, false);
  loadNetEvaporation(rows, loader.elements, loader.scenario->getInterval(), mmPerMetre);
  finishStep(bar);
}

void ReservoirProjectManager::loadTargetVolume(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  auto& loader = as<ReservoirProjectManager>(base);
  fillTargets(loader.elements, loader.scenario->getInterval());
  SerieProjectManager::load(targetVolumeSeries, loader.scenario->getInterval(), reservoirTagetVolumeTable,
                            loader.elements, "Res", "Oprr", whereEH1);
  finishStep(bar);
}

void ReservoirProjectManager::loadPriority(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  auto& loader = as<ReservoirProjectManager>(base);
  const auto rows = ask("select Res, Oprp from " + reservoirPriorityTable + " " + whereEH1, false);
  loadPriorities<PriorityReservoirSettings>(rows, loader.elements, *loader.scenario);
  finishStep(bar);
}

void ReservoirProjectManager::loadPriorityHydrologicalState(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  auto& loader = as<ReservoirProjectManager>(base);
  if (hasDefaultStates(*loader.scenario))
    loadStatePriorities<PriorityReservoirSettings>(ask("select Res, Oprp from " + reservoirPriorityTable, false),
                                                   *loader.scenario);
  finishStep(bar);
}

void ReservoirProjectManager::loadTargetVolumeHydrologicalState(ElementProjectManager* base, TeluCoreProgressBar& bar) {
  auto& loader = as<ReservoirProjectManager>(base);
  loadEachState<PriorityReservoirSettings>(*loader.scenario, Layout::MonthlyProfile, [](const std::string& state) {
    return askValues("select Res, Oprr from " + reservoirTagetVolumeTable + " where EstHidr = " + state, false);
  });
  finishStep(bar);
}

} // namespace Lagomare2010
