#include "loader/common/ScenarioParts.h"

#include "access/Fields.h"
#include "access/LagomareProjectManager.h"
#include "elements/common/States.h"
#include "model/ExecutionContinuous.h"
#include "model/PriorityScenario.h"
#include "model/ScenarioManager.h"

#include <stdexcept>
#include <vector>

namespace Lagomare {

namespace {

constexpr std::uint32_t lastYear = 9999;

} // namespace

Interval makeInterval(Date start, std::uint32_t durationYears) {
  if (durationYears > lastYear || start.getYear() + durationYears > lastYear)
    throw std::invalid_argument("SceneryProjectManager::loadInterval: a duration of " + std::to_string(durationYears) +
                                " years from " + std::to_string(start.getYear()) + " leads past the year 9999");
  Date end = start;
  end.setYear(start.getYear() + durationYears);
  --end;
  end.setDay(1, end.getMonth(), end.getYear());
  return {start, end, MonthlyType()};
}

Date firstDayOf(std::uint32_t year, std::uint32_t month) {
  if (month < 1 || month > 12)
    throw std::invalid_argument("SceneryProjectManager::loadInterval: there is no month " + std::to_string(month));
  return {year, static_cast<unsigned char>(month), 1};
}

std::shared_ptr<Scenario> makeScenario(const Interval& interval) {
  const std::shared_ptr<ExecutionMethod> executionMethod = std::make_shared<ExecutionContinuous>();
  const unsigned id = ScenarioManager::instance++;
  return std::make_shared<PriorityScenario>(executionMethod, id, interval, "Scenario" + std::to_string(id));
}

void loadStates(Scenario& scenario, const std::string& boundaryTable) {
  auto& states = hydrologicalStatesOf(scenario);
  states.setCurrentHydrologicalStateType(DefaultHydrologicalType());
  std::vector<double> boundaries;
  const auto rows = LagomareProjectManager::getInstance()->query("select * from " + boundaryTable, false);
  for (const auto& [id, rowsOfId] : rows)
    boundaries.push_back(inRow(rows, id, 0, [&row = rowsOfId.front()] { return numberAt(row, 1); }));
  states.setXValues(boundaries);
}

} // namespace Lagomare
