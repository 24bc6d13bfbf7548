#include "elements/2010/ElementProjectManager.h"
#include "elements/2010/ElementBdIdFactory.h"
#include "elements/2010/ElementProjectManagerFactory.h"
#include "elements/2013/ElementBdIdFactory.h"
#include "elements/2013/ElementProjectManager.h"
#include "elements/2013/ElementProjectManagerFactory.h"
#include "model/ElementFactory.h"
#include "model/TeluCoreProgressBar.h"

#include <gmock/gmock.h>

using namespace testing;

namespace {

template <typename BdIdFactory, typename LoaderFactory>
void expectFourKindsAlone() {
  for (const int kind : {1, 3, 4, 5, 6, 8, 9, 10, 12}) {
    const auto type = static_cast<ElementType>(kind);
    EXPECT_THAT([type] { static_cast<void>(BdIdFactory::makeVectorOfBdIds(type)); },
                ThrowsMessage<std::invalid_argument>("ElementBdIdFactory::makeVectorOfBdIds: invalid element type"));
    EXPECT_THAT([type] { static_cast<void>(LoaderFactory::make(type, {}, nullptr)); },
                ThrowsMessage<std::invalid_argument>("ElementProjectManagerFactory::make: invalid element type"));
  }
}

/// A loader of so many steps that refuses a drain among its elements, by this name, before any step runs.
template <typename LoaderFactory>
void expectLoader(ElementType type, const std::string& name, long steps) {
  const auto loader = LoaderFactory::make(
      type, {{1, ElementFactory::make(type)}, {2, ElementFactory::make(ElementType::DrainDemand)}}, nullptr);
  EXPECT_EQ(loader->numOfLambdas(), steps);
  EXPECT_EQ(loader->numOfLambdas(), steps) << "registered once";
  TeluCoreProgressBar bar(0, 1, {});
  EXPECT_THAT([&] { loader->load(bar); },
              ThrowsMessage<std::invalid_argument>(name + "ProjectManager::validElement(): invalid element type"));
}

} // namespace

TEST(ElementProjectManagerTest, IsMadeForFourKindsAlone) {
  expectFourKindsAlone<Lagomare2010::ElementBdIdFactory, Lagomare2010::ElementProjectManagerFactory>();
  expectFourKindsAlone<Lagomare2013::ElementBdIdFactory, Lagomare2013::ElementProjectManagerFactory>();
}

TEST(ElementProjectManagerTest, RefusesElementsOfOtherKindsBeforeItsSteps) {
  using Loaders2010 = Lagomare2010::ElementProjectManagerFactory;
  using Loaders2013 = Lagomare2013::ElementProjectManagerFactory;
  expectLoader<Loaders2010>(ElementType::Reservoir, "Reservoir", 9);
  expectLoader<Loaders2013>(ElementType::Reservoir, "Reservoir", 7);
  expectLoader<Loaders2010>(ElementType::HumanDemand, "Demand", 5);
  expectLoader<Loaders2013>(ElementType::HumanDemand, "Demand", 5);
  expectLoader<Loaders2010>(ElementType::Junction, "Junction", 1);
  expectLoader<Loaders2013>(ElementType::Junction, "Junction", 1);
  expectLoader<Loaders2010>(ElementType::NaturalLink, "Link", 3);
  expectLoader<Loaders2013>(ElementType::NaturalLink, "Link", 2);
}
