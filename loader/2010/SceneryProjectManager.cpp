#include "loader/2010/SceneryProjectManager.h"

#include "access/Fields.h"
#include "access/LagomareProjectManager.h"
#include "access/QueryResult.h"
#include "elements/2010/ElementBdIdFactory.h"
#include "elements/2010/ElementProjectManager.h"
#include "elements/2010/ElementProjectManagerFactory.h"
#include "elements/common/Kinds.h"
#include "loader/common/ElementLoop.h"
#include "loader/common/ImportPhases.h"
#include "loader/common/ScenarioParts.h"

namespace Lagomare2010 {

using namespace Lagomare;
using Lagomare::Row;

namespace {

// Columns of "DefGerais", which is read whole.
constexpr std::size_t tacticalColumn = 0;
constexpr std::size_t statesColumn = 1; // 0 asks for hydrological states
constexpr std::size_t durationColumn = 3;
constexpr std::size_t yearColumn = 4;
constexpr std::size_t monthColumn = 5;

} // namespace

const std::string SceneryProjectManager::sceneryGeneralInfoTable = "DefGerais";
const std::string SceneryProjectManager::sceneryXValuesTable = "FrontEH";
const std::vector<ElementType> SceneryProjectManager::vecOfElementType{reservoirKind, humanDemandKind, junctionKind,
                                                                       naturalLinkKind};

SceneryProjectManagerRet SceneryProjectManager::load(std::function<bool(long, long)> progress) {
  const auto settings = LagomareProjectManager::getInstance()->query("select * from " + sceneryGeneralInfoTable, false);
  const auto wantsStates = [](const Row& row) { return unsignedAt(row, statesColumn) == 0; };
  return importScenario<SceneryProjectManager>(settings, wantsStates, tacticalColumn, progress);
}

std::shared_ptr<Scenario> SceneryProjectManager::makeSceneryInstance(const Interval& interval) {
  return makeScenario(interval);
}

Interval SceneryProjectManager::loadInterval(const std::vector<std::vector<std::string>>& rows) {
  const Row& settings = rows.at(0);
  const auto year = unsignedAt(settings, yearColumn);
  const auto month = unsignedAt(settings, monthColumn);
  const Date start = firstDayOf(year, month);
  return makeInterval(start, unsignedAt(settings, durationColumn));
}

void SceneryProjectManager::loadHydrologicalState(std::shared_ptr<Scenario> scenario) {
  loadStates(*scenario, sceneryXValuesTable);
}

bool SceneryProjectManager::loadElements(std::shared_ptr<Scenario> scenario, std::function<bool(long, long)> progress) {
  return loadKinds<ElementBdIdFactory, ElementProjectManagerFactory>(vecOfElementType, scenario, progress);
}

} // namespace Lagomare2010
