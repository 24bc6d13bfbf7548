#include "ImportFixture.h"

#include "model/DrainDemand.h"
#include "model/PriorityDemandSettings.h"

#include <memory>
#include <string>

using namespace testing;

namespace {

class DemandProjectManagerTest : public DialectTest {
protected:
  /// The kind of a demand whose values in January and in all other months are these.
  static std::string kindOf(const std::string& january, const std::string& otherMonths) {
    return find(load("insert into demand (id) values (1); insert into demandValue select 1, 1, iif(month = 1, " +
                     january + ", " + otherMonths + ") from month"),
                1)
        ->getElementType()
        ->name;
  }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Dialects, DemandProjectManagerTest, bothDialects, dialectName);

TEST_P(DemandProjectManagerTest, TakesADemandOfAThousandAtEveryDateForADrain) {
  EXPECT_EQ(kindOf("1000", "1000"), "Dreno");
  EXPECT_EQ(kindOf("1e9", "999.9999995"), "Dreno") << "within the tolerance";
  EXPECT_EQ(kindOf("999.99", "1000"), "Demanda humana");
  EXPECT_EQ(kindOf("-2000", "2000"), "Demanda humana");
  EXPECT_EQ(find(load("insert into demand (id) values (1)"), 1)->getElementType()->id, 2) << "no rows are no drain";
  EXPECT_EQ(find(load("update settings set years = 0; insert into demand (id) values (1)"), 1)->getElementType()->id,
            6);
}

TEST_P(DemandProjectManagerTest, MakesDrainsAnewBeforeTheyAreFilled) {
  const auto scenario = load(R"(update settings set states = 1; insert into boundary values (1, 0.5);
    insert into demand (id, name) values (5, 'Foz'), (6, 'Delta'), (7, 'Vila'); insert into junction (id) values (8);
    insert into link (id, up, down) values (1, 8, 5);
    insert into demandValue select id, state, iif(id < 7, 1000, 0) + state * month
      from month, (select 5 id union all select 6 union all select 7), (select 1 state union all select 2);
    insert into demandPriority values (5, 1, 3.9), (5, 2, 4);
    insert into flow select 5, month from month;)");
  const auto drain = find<DrainDemand>(scenario, 5);
  EXPECT_EQ(drain->getName(), "Foz");
  EXPECT_DOUBLE_EQ(drain->getX(), -45.0);
  EXPECT_THAT(valuesOf(*drain, SerieType::WaterDemand), IsEmpty());
  EXPECT_EQ(valuesOf(*drain, SerieType::NaturalAffluentFlow).at(11), 12.0);
  EXPECT_THAT(drain->getUpstreamLinks(), SizeIs(1));
  EXPECT_EQ(find(scenario, 6)->getElementType()->id, 6);
  EXPECT_EQ(valuesOf(*find(scenario, 7), SerieType::WaterDemand).at(11), 12.0);

  const auto settings =
      std::dynamic_pointer_cast<PriorityDemandSettings>(scenario->getSettingsManager().getSettings(5));
  ASSERT_EQ(settings->getPrioritySeries().size(), 2U);
  EXPECT_EQ(settings->priority, 3);
  EXPECT_EQ(settings->getPrioritySeries()[1].first, 4U);
  EXPECT_EQ(valuesOf(*settings->getPrioritySeries()[1].second).at(11), 1024.0) << "month 12 of state 2";
}
