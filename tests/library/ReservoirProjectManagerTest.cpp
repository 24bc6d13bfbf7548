#include "ImportFixture.h"

#include "model/PriorityReservoirSettings.h"
#include "model/Reservoir.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

using namespace testing;

namespace {

std::shared_ptr<PriorityReservoirSettings> settingsOf(const std::shared_ptr<Scenario>& scenario, unsigned id) {
  return std::dynamic_pointer_cast<PriorityReservoirSettings>(scenario->getSettingsManager().getSettings(id));
}

class ReservoirProjectManagerTest : public DialectTest {};
class Reservoir2010Test : public ImportTest {};

} // namespace

INSTANTIATE_TEST_SUITE_P(Dialects, ReservoirProjectManagerTest, bothDialects, dialectName);

TEST_P(ReservoirProjectManagerTest, ReadsVolumesFlagAndCurveAsTheyStand) {
  const auto scenario = load(R"(
    insert into reservoir values (7, 'A', 5e5, 8e6, 90.5, 10, 50, 1), (8, 'B', 5e5, 8e6, 1, 2, 3, 0), (9, 'C', 5e5, 8e6, 0, 0, 0, -1),
                                 (7, 'again', 5e5, 8e6, 'x', 'x', 'x', 'x');
    insert into curve values (7, 410.0, 120.5, 3.2), (8, 1, 1, 1), (7, 400, 99, 1e3), (7, 410.0, 120.5, 3.2), (99, 'x', 'x', 'x');)");
  const auto& info = find<Reservoir>(scenario, 7)->getReservoirInfo();
  EXPECT_EQ(info.maximumVolume, 90.5);
  EXPECT_EQ(info.minimumVolume, 10.0);
  EXPECT_EQ(info.initialVolume, 50.0);
  EXPECT_FALSE(info.volumeFlag);
  EXPECT_THAT(info.areaVolumeCurve, ElementsAre(std::vector{410.0, 120.5, 3.2}, std::vector{400.0, 99.0, 1000.0},
                                                std::vector{410.0, 120.5, 3.2}));
  EXPECT_TRUE(settingsOf(scenario, 7)->getIsHydrologicalStateSystem());
  EXPECT_FALSE(settingsOf(scenario, 8)->getIsHydrologicalStateSystem());
  EXPECT_TRUE(settingsOf(scenario, 9)->getIsHydrologicalStateSystem()) << "-1 is a number but 0";
  EXPECT_THAT(find<Reservoir>(scenario, 9)->getReservoirInfo().areaVolumeCurve, IsEmpty());
}

TEST_P(ReservoirProjectManagerTest, PartsNetEvaporationMonthByMonth) {
  const auto scenario = load(R"(update settings set years = 2; insert into reservoir (id) values (1), (2), (3);
    insert into evaporation select 1, (month - 6) * 1.5 from month;
    insert into evaporation values (2, -0.0000005), (2, -2), (99, 'x');)");
  const auto evaporation = valuesOf(*find(scenario, 1), SerieType::Evapotranspiration);
  const auto precipitation = valuesOf(*find(scenario, 1), SerieType::Precipitation);
  ASSERT_EQ(evaporation.size(), 24U);
  for (std::size_t month = 0; month < 24; ++month) {
    const double net = (static_cast<double>(month % 12) - 5) * 1.5; // mm
    EXPECT_DOUBLE_EQ(evaporation[month], std::max(net, 0.0));
    EXPECT_DOUBLE_EQ(precipitation[month], std::max(-net, 0.0));
  }
  EXPECT_DOUBLE_EQ(valuesOf(*find(scenario, 2), SerieType::Evapotranspiration)[0], -5e-7)
      << "zero within the tolerance";
  EXPECT_THAT(valuesOf(*find(scenario, 2), SerieType::Precipitation), Contains(2.0).Times(2)) << "two Februaries";
  EXPECT_THAT(valuesOf(*find(scenario, 3), SerieType::Precipitation), IsEmpty());
}

TEST_P(ReservoirProjectManagerTest, AimsAtFullWhereTheProjectSaysNothing) {
  const auto scenario = load(R"(update settings set years = 2, states = 1; insert into boundary values (1, 0.5);
    insert into reservoir (id) values (1), (2); insert into target select 1, 1, month / 100.0 from month;
    insert into target select 1, 2, month / 200.0 from month; insert into reservoirPriority values (1, 1, 5), (1, 2, 6);)");
  const auto targets = valuesOf(*find(scenario, 1), SerieType::TargetVolume);
  EXPECT_EQ(targets[11], 0.12);
  EXPECT_EQ(targets[12], GetParam() == &dialect2010 ? 0.01 : 1.0) << "rows for the first year alone";
  EXPECT_EQ(valuesOf(*find(scenario, 2), SerieType::TargetVolume), std::vector<double>(24, 1.0));
  const auto& states = settingsOf(scenario, 1)->getPrioritySeries();
  EXPECT_EQ(settingsOf(scenario, 1)->priority, 5);
  EXPECT_EQ(states.at(1).first, 6U);
  EXPECT_EQ(valuesOf(*states.at(1).second)[11], 0.06);
}

TEST_F(Reservoir2010Test, HasNoVolumesAndNoFlagWithoutRows) {
  const std::string reservoirs =
      "insert into reservoir values (1, 'A', 5e5, 8e6, 9, 1, 5, 1), (2, 'B', 5e5, 8e6, 9, 1, 5, 1)";
  for (const char* rest : {"where Res = 1", ""}) {
    const auto scenario =
        load(dialect2010, reservoirs, std::string("delete from Res ") + rest + "; delete from ResSubsist " + rest);
    const auto& info = find<Reservoir>(scenario, 1)->getReservoirInfo();
    EXPECT_THAT((std::vector{info.initialVolume, info.minimumVolume, info.maximumVolume}), Each(0.0));
    EXPECT_FALSE(settingsOf(scenario, 1)->getIsHydrologicalStateSystem());
  }
}
