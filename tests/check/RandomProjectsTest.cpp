#include "check/MemoryProject.h"
#include "model/Calendar.h"
#include "model/Date.h"
#include "model/ElementType.h"
#include "model/Interval.h"
#include "model/Link.h"
#include "model/Node.h"
#include "model/PriorityReservoirSettings.h"
#include "model/PrioritySettings.h"
#include "model/Reservoir.h"
#include "model/Scenario.h"
#include "model/Serie.h"
#include "model/SerieType.h"
#include "tools/check/result/CheckResult.h"
#include "tools/check/result/CheckText.h"
#include "tools/check/tables/Tables.h"
#include "tools/project/Dialect.h"
#include "tools/project/Fault.h"

#include <gmock/gmock.h>
#include <memory>
#include <string>
#include <vector>

#include <array>
#include <random>

using namespace LagomareTools;
using namespace testing;

namespace {

/// Breaks projects at random: fields, rows, columns and tables.
class Breaker {
public:
  Breaker(unsigned seed, Dialect dialect) : engine_(seed), schema_(schemaOf(dialect)) {}

  std::vector<std::string> changes() {
    std::vector<std::string> changes(pick(7));
    for (std::string& sql : changes)
      sql = change();
    return changes;
  }

private:
  std::size_t pick(std::size_t below) { return engine_() % below; }

  const LegacyTable& pickTable() { return schema_.tables[pick(schema_.tables.size())]; }

  /// The rows of the sound project are few enough for this to hit one mostly.
  std::string pickRows(const LegacyTable& table) {
    const std::string name = table.name;
    const std::string rows = "(select count(*) from " + name + ")";
    const std::string row = std::to_string(1 + pick(50));
    switch (pick(4)) {
    case 0:
      return "rowid >= " + row;
    case 1:
      return "rowid = " + rows;
    default:
      return "rowid = 1 + (" + row + " - 1) % max(1, " + rows + ")";
    }
  }

  std::string pickValue() {
    static const std::array<const char*, 30> values{
        "null",         "''",   "'abc'",  "'1,5'",      "'2 000'", "'-1'",       "-1",
        "2.5",          "1",    "2",      "3",          "4",       "7",          "11",
        "12",           "99",   "'3x'",   "4294967296", "1e9",     "-9999",      "4294967295",
        "'2a'",         "' 3'", "'0x1F'", "3.0",        "'1e400'", "2147483648", "'01/02/2000'",
        "'2000-02-01'", "1000"};
    return values[pick(values.size())];
  }

  std::string change() {
    const LegacyTable& table = pickTable();
    const std::string name = table.name;
    const std::string column = table.columns[pick(table.columns.size())].name;
    const std::string copy = "; insert into " + name + " select * from temp.copy; drop table temp.copy";
    switch (pick(12)) {
    case 0:
      return "delete from " + name + " where " + pickRows(table);
    case 1:
      return "insert into " + name + " select * from " + name + " where " + pickRows(table);
    case 2: // rows in another order
      return "create temp table copy as select * from " + name + " order by " + column + " desc; delete from " + name +
             copy;
    case 3: // one to the front
      return "create temp table copy as select * from " + name + "; delete from " + name + "; insert into " + name +
             " select * from temp.copy order by rowid desc limit 1" + copy;
    case 4:
      return pick(4) > 0 ? "" : "drop table if exists " + name + "_; alter table " + name + " rename to " + name + "_";
    case 5:
      return "alter table " + name + " rename column " + column + " to " + (pick(2) > 0 ? "Other" : column + "_");
    case 6:
      return pick(2) > 0 ? "" : "delete from " + name;
    default:
      return "update " + name + " set " + column + " = " + pickValue() + " where " + pickRows(table);
    }
  }

  std::mt19937 engine_;
  const Schema& schema_;
};

/// How many values of a series are not what a series without values holds, up to the last one of twelve months where
/// they repeat.
std::size_t valuesIn(const Serie& serie, bool repeats, double absent = 0.0) {
  std::size_t values = 0;
  std::size_t month = 0;
  const Interval& interval = serie.getInterval();
  for (Date date = interval.getBegin(); date <= interval.getEnd(); date += Calendar::incInterval(date, interval))
    if ((++month <= 12 || !repeats) && serie.getValue(date) != absent)
      ++values;
  return values;
}

/// What an import has laid, counted by what it came from.
struct Laid {
  std::size_t nodes = 0;
  std::size_t links = 0;
  std::size_t flows = 0;
  std::size_t demands = 0;
  std::size_t targets = 0;
  std::size_t evaporation = 0;
  std::size_t points = 0;
  std::size_t limits = 0;
  std::size_t losses = 0;
  bool hasDrain = false;
};

void countNode(Laid& laid, const Scenario& scenario, const Node& node, bool repeats) {
  const auto serie = [&node](SerieType type) { return node.getSeriesInput()->find(type); };
  const auto settings =
      std::dynamic_pointer_cast<PrioritySettings>(scenario.getSettingsManager().getSettings(node.bdId));
  const bool hasStates = settings && !settings->getPrioritySeries().empty();
  const bool isReservoir = dynamic_cast<const Reservoir*>(&node) != nullptr;
  ++laid.nodes;
  laid.flows += valuesIn(*serie(SerieType::NaturalAffluentFlow), false);
  laid.hasDrain = laid.hasDrain || node.getElementType()->type() == ElementType::DrainDemand;
  if (hasStates)
    for (const auto& [priority, values] : settings->getPrioritySeries())
      (isReservoir ? laid.targets : laid.demands) += valuesIn(*values, repeats);
  else if (settings && !isReservoir)
    laid.demands += valuesIn(*serie(SerieType::WaterDemand), repeats);
  if (!isReservoir)
    return;
  laid.targets += hasStates ? 0 : valuesIn(*serie(SerieType::TargetVolume), repeats, 1.0);
  laid.evaporation +=
      valuesIn(*serie(SerieType::Precipitation), true) + valuesIn(*serie(SerieType::Evapotranspiration), true);
  laid.points += dynamic_cast<const Reservoir&>(node).getReservoirInfo().areaVolumeCurve.size();
}

Laid countLaid(const Scenario& scenario, bool repeats) {
  Laid laid;
  for (const auto& element : scenario.getElements())
    if (const auto link = std::dynamic_pointer_cast<Link>(element)) {
      ++laid.links;
      laid.limits += link->getSeriesInput()->find(SerieType::LinkLimitSerie)->getInterval().isEmpty() ? 0U : 1U;
      laid.losses += link->getSeriesInput()->find(SerieType::LinkLoss)->getInterval().isEmpty() ? 0U : 1U;
    } else {
      countNode(laid, scenario, dynamic_cast<const Node&>(*element), repeats);
    }
  return laid;
}

/// The rows that the check says are taken, of all tables with that meaning or layout.
template <typename Sort>
std::size_t takenOf(const CheckResult& result, Sort sort) {
  std::size_t taken = 0;
  for (const LegacyTable& table : schemaOf(result.dialect).tables)
    for (const TableCount& count : result.tables)
      if (count.table == table.name && sort(table))
        taken += count.taken;
  return taken;
}

void expectFitsScenario(const CheckResult& result, const Scenario& scenario, const std::string& changes) {
  const bool repeats = result.dialect == Dialect::of2010;
  const Laid laid = countLaid(scenario, repeats);
  const auto taken = [&result](Meaning meaning) {
    return takenOf(result, [meaning](const LegacyTable& table) {
      return table.layout != Layout::nodes && table.layout != Layout::links &&
             table.columnOf(meaning) < table.columns.size();
    });
  };
  const auto takenOfLayout = [&result](Layout layout) {
    return takenOf(result, [layout](const LegacyTable& table) { return table.layout == layout; });
  };
  EXPECT_EQ(laid.nodes, takenOfLayout(Layout::nodes)) << changes;
  EXPECT_EQ(laid.links, takenOfLayout(Layout::links)) << changes;
  EXPECT_EQ(laid.flows, taken(Meaning::naturalFlow)) << changes;
  EXPECT_EQ(laid.targets, taken(Meaning::target)) << changes;
  EXPECT_EQ(laid.evaporation, taken(Meaning::netEvaporation)) << changes;
  EXPECT_EQ(laid.points, taken(Meaning::level)) << changes;
  EXPECT_EQ(laid.limits, taken(Meaning::flowLimit)) << changes;
  EXPECT_TRUE(!repeats || laid.losses == taken(Meaning::loss)) << changes;
  // Of a drain without states the demand is dropped.
  EXPECT_TRUE(laid.hasDrain || laid.demands == taken(Meaning::demand)) << laid.demands << '\n' << changes;
}

} // namespace

TEST(RandomProjectsTest, AnErrorIsFoundExactlyIfTheImportDoesNotSucceed) {
  std::size_t numOfImported = 0;
  constexpr unsigned numOfProjects = 1000;
  for (const Dialect dialect : allDialects)
    for (unsigned seed = 0; seed < numOfProjects && !HasFailure(); ++seed) {
      SCOPED_TRACE("seed " + std::to_string(seed));
      MemoryProject project(dialect, soundProject(dialect));
      std::string changes;
      for (const std::string& sql : Breaker(seed, dialect).changes()) {
        project.tryChange(sql); // one that an earlier one made impossible is left out
        changes += sql + ";\n";
      }
      const CheckResult result = project.check();
      expectFitsImport(project, result, changes);
      if (result.count(Severity::error) > 0)
        continue;
      ++numOfImported;
      expectFitsScenario(result, *project.import().scenario, changes);
    }
  EXPECT_GT(numOfImported, numOfProjects / 2);
  EXPECT_LT(numOfImported, numOfProjects * 3 / 2);
}
