#include "elements/2010/ElementProjectManager.h"
#include "elements/2010/ElementBdIdFactory.h"
#include "elements/2010/ElementProjectManagerFactory.h"
#include "elements/2013/ElementBdIdFactory.h"
#include "elements/2013/ElementProjectManager.h"
#include "elements/2013/ElementProjectManagerFactory.h"
#include "model/ElementFactory.h"
#include "model/TeluCoreProgressBar.h"

#include <gmock/gmock.h>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>

using namespace testing;

namespace {

/// The factories of a dialect serve four kinds alone; the loaders of these have so many steps, and refuse a drain among
/// their elements before any of them.
template <typename BdIdFactory, typename LoaderFactory>
void expectFourLoaders(long reservoirSteps, long linkSteps) {
  for (const int kind : {1, 3, 4, 5, 6, 8, 9, 10, 12}) {
    const auto type = static_cast<ElementType>(kind);
    EXPECT_THAT([type] { static_cast<void>(BdIdFactory::makeVectorOfBdIds(type)); },
                ThrowsMessage<std::invalid_argument>("ElementBdIdFactory::makeVectorOfBdIds: invalid element type"));
    EXPECT_THAT([type] { static_cast<void>(LoaderFactory::make(type, {}, nullptr)); },
                ThrowsMessage<std::invalid_argument>("ElementProjectManagerFactory::make: invalid element type"));
  }
  const std::map<ElementType, std::pair<std::string, long>> loaders{
      {ElementType::Reservoir, {"Reservoir", reservoirSteps}},
      {ElementType::HumanDemand, {"Demand", 5}},
      {ElementType::Junction, {"Junction", 1}},
      {ElementType::NaturalLink, {"Link", linkSteps}}};
  for (const auto& [type, expected] : loaders) {
    const auto loader = LoaderFactory::make(
        type, {{1, ElementFactory::make(type)}, {2, ElementFactory::make(ElementType::DrainDemand)}}, nullptr);
    EXPECT_EQ(loader->numOfLambdas(), expected.second);
    EXPECT_EQ(loader->numOfLambdas(), expected.second) << "registered once";
    TeluCoreProgressBar bar(0, 1, {});
    EXPECT_THAT(
        [&] { loader->load(bar); },
        ThrowsMessage<std::invalid_argument>(expected.first + "ProjectManager::validElement(): invalid element type"));
  }
}

} // namespace

TEST(ElementProjectManagerTest, IsMadeForFourKindsAndRefusesOtherElements) {
  expectFourLoaders<Lagomare2010::ElementBdIdFactory, Lagomare2010::ElementProjectManagerFactory>(9, 3);
  expectFourLoaders<Lagomare2013::ElementBdIdFactory, Lagomare2013::ElementProjectManagerFactory>(7, 2);
}
