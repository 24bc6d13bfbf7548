#include "ImportFixture.h"

#include "loader/2010/SceneryProjectManager.h"
#include "loader/2013/SceneryProjectManager.h"
#include "model/PriorityScenario.h"
#include "model/ScenarioManager.h"

#include <memory>
#include <stdexcept>
#include <string>

using namespace testing;

namespace {

/// "1999-3 to 2001-2"
std::string spanOf(const Interval& interval) {
  const auto month = [](const Date& date) {
    EXPECT_EQ(date.getDay(), 1);
    return std::to_string(date.getYear()) + '-' + std::to_string(date.getMonth());
  };
  return month(interval.getBegin()) + " to " + month(interval.getEnd());
}

std::string span2010(const std::string& year, const std::string& month, const std::string& years) {
  return spanOf(Lagomare2010::SceneryProjectManager::loadInterval({{"0", "0", "", years, year, month}}));
}

std::string span2013(const std::string& start, const std::string& years) {
  return spanOf(Lagomare2013::SceneryProjectManager::loadInterval({{start, years, "0", "0"}}));
}

class SceneryProjectManagerTest : public DialectTest {};

} // namespace

INSTANTIATE_TEST_SUITE_P(Dialects, SceneryProjectManagerTest, bothDialects, dialectName);

TEST_P(SceneryProjectManagerTest, NumbersScenariosRefusedOnesIncluded) {
  const unsigned id = ScenarioManager::instance;
  import("update settings set tactical = 1");
  const auto scenario = load("update settings set start = '1999-03-15 10:30:00', years = 2");
  EXPECT_EQ(scenario->getId(), id + 1);
  EXPECT_EQ(scenario->getName(), "Scenario" + std::to_string(id + 1));
  EXPECT_EQ(spanOf(scenario->getInterval()), "1999-3 to 2001-2");
  EXPECT_EQ(scenario->getInterval().getPeriodicity().dateFormat, "%m/%Y");
  EXPECT_EQ(scenario->getExecutionMethod()->getHorizon().name, "Contínuo");
}

TEST_P(SceneryProjectManagerTest, ReadsTheBoundariesInTheOrderOfTheirIds) {
  const std::string project = "insert into boundary values (3, 0.9), (1, 0.25), (2, 0.5), (1, 7);";
  const auto statesOf = [](const auto& scenario) {
    return std::dynamic_pointer_cast<PriorityScenario>(scenario)->getHydrologicalStateConfiguration();
  };
  auto scenario = load("update settings set states = 1;" + project);
  EXPECT_THAT(statesOf(scenario)->getXValues(), ElementsAre(0.25, 0.5, 0.9));
  EXPECT_EQ(statesOf(scenario)->getNumOfStates(), 4U);
  EXPECT_EQ(statesOf(scenario)->getCurrentHydrologicalStateType().name, "Padrão");
  scenario = load("update settings set states = 1");
  EXPECT_EQ(statesOf(scenario)->getNumOfStates(), 1U);
  scenario = load(project);
  EXPECT_EQ(statesOf(scenario)->getNumOfStates(), 0U);
  EXPECT_EQ(statesOf(scenario)->getCurrentHydrologicalStateType().name, "Sem");
  EXPECT_THAT([] { import("update settings set states = 1; insert into boundary values (1, 'high')"); },
              ThrowsMessage<std::invalid_argument>("stod"));
}

TEST_P(SceneryProjectManagerTest, RefusesMoreValuesThanCanBeMeant) {
  // 2^30 values are 11186 series of 7999 years: four of a reservoir, two of a demand, one more of each per state.
  const auto refusal = [](const std::string& sql) {
    try {
      import("update settings set years = 7999; create temp table n as with recursive n(i) as "
             "(select 1 union all select i + 1 from n limit 12000) select i from n; " +
             sql);
    } catch (const std::length_error& error) {
      return std::string(error.what());
    }
    return std::string("none");
  };
  const std::string begin = "SceneryProjectManager::loadElements: ";
  const std::string end = " hydrological states are too many for so long a period";
  EXPECT_EQ(refusal("insert into junction (id) select i from n limit 11187"), begin + "11187 elements with 0" + end);
  EXPECT_EQ(refusal("insert into reservoir (id) select i from n limit 2797"), begin + "2797 elements with 0" + end);
  EXPECT_EQ(refusal("insert into reservoir (id) select i from n limit 2000;"
                    "insert into demand (id) select i + 2000 from n limit 1594"),
            begin + "3594 elements with 0" + end);
  EXPECT_EQ(refusal("update settings set states = 1; insert into boundary values (1, 0.5);"
                    "insert into reservoir (id) select i from n limit 1865"),
            begin + "1865 elements with 2" + end);
}

TEST(SceneryProjectManagerIntervalTest, Is12MonthsAYear) {
  EXPECT_EQ(span2010("2000", "1", "1"), "2000-1 to 2000-12");
  EXPECT_EQ(span2010("1999", "10", "3"), "1999-10 to 2002-9");
  EXPECT_EQ(span2013("29/02/2000", "1"), "2000-2 to 2001-1");
  EXPECT_EQ(span2013("15/03/1999 23:59:59", "2"), "1999-3 to 2001-2");
  EXPECT_EQ(span2013("01/01/2000", "7999"), "2000-1 to 9998-12");
  EXPECT_EQ(span2010("2000", "1", "0"), "2000-1 to 1999-12") << "no step at all";
}

TEST(SceneryProjectManagerIntervalTest, ExistsInTheCalendar) {
  for (const char* month : {"0", "13", "257", "4294967295"})
    EXPECT_THAT([month] { span2010("2000", month, "1"); },
                ThrowsMessage<std::invalid_argument>(EndsWith("there is no month " + std::string(month))));
  for (const char* years : {"8000", "4294967295", "-1"}) {
    const auto pastTheEnd = ThrowsMessage<std::invalid_argument>(EndsWith("leads past the year 9999"));
    EXPECT_THAT([years] { span2010("2000", "1", years); }, pastTheEnd);
    EXPECT_THAT([years] { span2013("01/01/2000", years); }, pastTheEnd);
  }
  EXPECT_THAT([] { span2010("2000", "1", "4294967296"); }, ThrowsMessage<std::out_of_range>("stoul"));
  EXPECT_THROW(span2010("10000", "1", "1"), std::invalid_argument);
  EXPECT_THROW(span2013("30/02/2000", "1"), std::invalid_argument);
  EXPECT_THROW(span2013("2000-01-31", "1"), std::invalid_argument);
  EXPECT_THROW(static_cast<void>(Lagomare2013::SceneryProjectManager::loadInterval({{"1/1/2000"}})), std::out_of_range);
}
