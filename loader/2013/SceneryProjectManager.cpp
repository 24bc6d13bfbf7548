#include "loader/2013/SceneryProjectManager.h"

#include "access/Fields.h"
#include "access/LagomareProjectManager.h"
#include "access/QueryResult.h"
#include "elements/2013/ElementBdIdFactory.h"
#include "elements/2013/ElementProjectManager.h"
#include "elements/2013/ElementProjectManagerFactory.h"
#include "elements/common/Kinds.h"
#include "loader/common/ElementLoop.h"
#include "loader/common/ImportPhases.h"
#include "loader/common/ScenarioParts.h"
#include "model/StringUtils.h"

namespace Lagomare2013 {

using namespace Lagomare;
using Lagomare::Row;

namespace {

// Columns of sceneryGeneralInfoFields.
constexpr std::size_t startColumn = 0;
constexpr std::size_t durationColumn = 1;
constexpr std::size_t statesColumn = 2; // anything but 0 asks for hydrological states
constexpr std::size_t tacticalColumn = 3;

} // namespace

const std::string SceneryProjectManager::sceneryGeneralInfoTable = "Tk_Gerais";
const std::string SceneryProjectManager::sceneryGeneralInfoFields =
    "FORMAT(DataHoraIni, 'dd/mm/yyyy'), Duracao, OptCalc, TipoSimul";
const std::string SceneryProjectManager::sceneryXValuesTable = "LgmFrontEH";
const std::vector<ElementType> SceneryProjectManager::vecOfElementType{reservoirKind, humanDemandKind, junctionKind,
                                                                       naturalLinkKind};

SceneryProjectManagerRet SceneryProjectManager::load(std::function<bool(long, long)> progress) {
  const auto settings = LagomareProjectManager::getInstance()->query(
      "select " + sceneryGeneralInfoFields + " from " + sceneryGeneralInfoTable, false);
  const auto wantsStates = [](const Row& row) { return unsignedAt(row, statesColumn) != 0; };
  return importScenario<SceneryProjectManager>(settings, wantsStates, tacticalColumn, progress);
}

std::shared_ptr<Scenario> SceneryProjectManager::makeSceneryInstance(const Interval& interval) {
  return makeScenario(interval);
}

Interval SceneryProjectManager::loadInterval(const std::vector<std::vector<std::string>>& rows) {
  const Row& settings = rows.at(0);
  // A time of day may follow the date.
  const std::string& text = textAt(settings, startColumn);
  const auto parts = StringUtils::split(text, ' ');
  Date start = Date::fromString(parts.size() < 2 ? text : parts.front(), "%d/%m/%Y");
  return makeInterval(firstDayOf(start.getYear(), start.getMonth()), unsignedAt(settings, durationColumn));
}

void SceneryProjectManager::loadHydrologicalState(std::shared_ptr<Scenario> scenario) {
  loadStates(*scenario, sceneryXValuesTable);
}

bool SceneryProjectManager::loadElements(std::shared_ptr<Scenario> scenario, std::function<bool(long, long)> progress) {
  return loadKinds<ElementBdIdFactory, ElementProjectManagerFactory>(vecOfElementType, scenario, progress);
}

} // namespace Lagomare2013
