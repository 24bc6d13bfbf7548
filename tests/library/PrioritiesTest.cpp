#include "ImportFixture.h"
#include "Network.h"

#include "access/LagomareProjectManager.h"
#include "elements/2010/DemandProjectManager.h"
#include "elements/2010/ReservoirProjectManager.h"
#include "elements/2013/DemandProjectManager.h"
#include "elements/2013/ReservoirProjectManager.h"
#include "model/PrioritySettings.h"
#include "model/TeluCoreProgressBar.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

using namespace testing;

namespace {

template <typename L, ElementType T, auto StateSeries>
struct Kind {
  using Loader = L;
  static constexpr ElementType type = T;
  static constexpr auto loadStateSeries = StateSeries;
  static constexpr bool isProfile = std::is_base_of_v<Lagomare2010::ElementProjectManager, L>;
};

template <typename L>
using DemandKind = Kind<L, ElementType::HumanDemand, L::loadWaterDemandHydrologicalState>;
template <typename L>
using ReservoirKind = Kind<L, ElementType::Reservoir, L::loadTargetVolumeHydrologicalState>;

/// Runs single steps on the element 1, in a scenario of two years and three states that holds the element 2, which has
/// other settings, and the junction 3. All queries of a step get the same answer.
template <typename K>
class PrioritiesTest : public WorkingDirectoryTest {
protected:
  PrioritiesTest() {
    states().setXValues({0.3, 0.6});
    states().setCurrentHydrologicalStateType(DefaultHydrologicalType());
    Network network{scenario};
    network.node(K::type, 1);
    network.node(K::type == ElementType::Reservoir ? ElementType::HumanDemand : ElementType::Reservoir, 2);
    network.node(ElementType::Junction, 3);
    LagomareProjectManager::getInstance("")->setApiExecutable(":");
  }

  template <typename Step>
  void run(Step step, const std::string& answer) {
    write("query-result.txt", answer);
    typename K::Loader loader({{1, scenario->getElement(1)}}, scenario);
    TeluCoreProgressBar bar(0, 1, {});
    step(&loader, bar);
  }

  HydrologicalStateConfiguration& states() { return *scenario->getHydrologicalStateConfiguration(); }
  PrioritySettings& settings() {
    return dynamic_cast<PrioritySettings&>(*scenario->getSettingsManager().getSettings(1));
  }
  std::vector<unsigned> statePriorities() {
    std::vector<unsigned> priorities;
    for (const auto& entry : settings().getPrioritySeries())
      priorities.push_back(entry.first);
    return priorities;
  }

  const std::shared_ptr<PriorityScenario> scenario = Network().scenario;
};

} // namespace

using Kinds =
    Types<DemandKind<Lagomare2010::DemandProjectManager>, DemandKind<Lagomare2013::DemandProjectManager>,
          ReservoirKind<Lagomare2010::ReservoirProjectManager>, ReservoirKind<Lagomare2013::ReservoirProjectManager>>;
TYPED_TEST_SUITE(PrioritiesTest, Kinds, ); // the comma: clang warns of a macro without its last argument

TYPED_TEST(PrioritiesTest, AreTruncatedFromTheFirstRow) {
  const auto step = TypeParam::Loader::loadPriority;
  this->run(step, "1 2.9 .\n1 7 .\n2 x .\n99 x .\n");
  EXPECT_EQ(this->settings().priority, 2);
  this->run(step, "1 -1.5 .\n");
  EXPECT_EQ(this->settings().priority, -1);
  for (const char* text : {"1e10", "2147483648", "nan", "-inf"})
    EXPECT_THAT([&] { this->run(step, std::string("1 ") + text + " .\n"); }, ThrowsMessage<std::out_of_range>("stod"));
  EXPECT_EQ(this->settings().priority, -1);
}

TYPED_TEST(PrioritiesTest, OfAStateAreItsRow) {
  const auto step = TypeParam::Loader::loadPriorityHydrologicalState;
  this->run(step, "1 2.9 .\n1 -0.5 .\n1 4294967295 .\n1 8 .\n99 x .\n");
  EXPECT_THAT(this->statePriorities(), ElementsAre(2, 0, 4294967295));
  for (const char* text : {"-1", "1e10", "nan"})
    EXPECT_THAT([&] { this->run(step, std::string("1 ") + text + " .\n"); }, ThrowsMessage<std::out_of_range>("stod"));
  EXPECT_THAT([&] { this->run(step, "1 1 .\n1 1 .\n1 1 .\n1 x .\n"); }, ThrowsMessage<std::invalid_argument>("stod"))
      << "a row beyond the last state";
}

TYPED_TEST(PrioritiesTest, MissTheirSettingsBeforeTheyAreConverted) {
  using Loader = typename TypeParam::Loader;
  const auto missSettings = ThrowsMessage<std::invalid_argument>("Passed element is not valid for element setting");
  for (const char* answer : {"2 x .\n", "3 x .\n"}) {
    EXPECT_THAT([&] { this->run(Loader::loadPriorityHydrologicalState, answer); }, missSettings);
    EXPECT_THAT([&] { this->run(TypeParam::loadStateSeries, answer); }, missSettings);
  }
  this->scenario->getSettingsManager().removeSettings(1);
  EXPECT_THAT([&] { this->run(Loader::loadPriority, "1 x .\n"); }, missSettings);
}

TYPED_TEST(PrioritiesTest, StandBesideSeriesWhoseRowsAreConvertedAsNeeded) {
  const std::size_t needed = TypeParam::isProfile ? 12 : 24;
  std::string answer = "99 x .\n";
  for (std::size_t row = 1; row <= 24; ++row)
    answer += row <= needed ? "1 " + std::to_string(row) + " .\n" : "1 x .\n";
  this->run(TypeParam::loadStateSeries, answer + "1 x .\n");
  for (const auto& [priority, serie] : this->settings().getPrioritySeries()) {
    const auto values = valuesOf(*serie);
    ASSERT_EQ(values.size(), 24U);
    EXPECT_EQ(values[11], 12.0);
    EXPECT_EQ(values[13], TypeParam::isProfile ? 2.0 : 14.0);
  }
  this->run(TypeParam::loadStateSeries, "1 -5 .\n");
  const auto values = valuesOf(*this->settings().getPrioritySeries()[2].second);
  EXPECT_EQ(values[0], -5.0);
  EXPECT_EQ(values[1], 2.0) << "where rows are too few the series keeps what it held";
  EXPECT_THAT([&] { this->run(TypeParam::loadStateSeries, "1 1 .\n1 x .\n"); },
              ThrowsMessage<std::invalid_argument>("stod"));
}

TYPED_TEST(PrioritiesTest, OfStatesAreReadForTheDefaultKindAlone) {
  this->states().setCurrentHydrologicalStateType(ReservoirHydrologicalType());
  this->run(TypeParam::Loader::loadPriorityHydrologicalState, "1 x .\n");
  this->run(TypeParam::loadStateSeries, "1 5 .\n");
  EXPECT_EQ(valuesOf(*this->settings().getPrioritySeries()[2].second).front(), 5.0) << "series are read for all";
}
