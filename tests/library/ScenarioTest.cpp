#include "Network.h"
#include "model/CoreServiceManager.h"
#include "model/DrainDemand.h"
#include "model/ElementFactory.h"
#include "model/ElementsFilter.h"
#include "model/Link.h"
#include "model/Node.h"
#include "model/SceneryCheck.h"

#include <gmock/gmock.h>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

using namespace testing;

namespace {

/// What a copy of a demand has too.
std::string shown(const Demand& demand) {
  std::string text = demand.getElementType()->name + ' ' + std::to_string(demand.bdId) + ' ' + demand.getName() +
                     PrintToString(std::make_pair(demand.getX(), demand.getY())) + PrintToString(demand.hostValues);
  for (unsigned window = 0; window < demand.getWindows().size(); ++window)
    for (const auto& serie : demand.getVectorOfSeries(window))
      text += ' ' + serie->getSerieType().name + ' ' + std::to_string(serie->getValue(Date(2001, 12, 1)));
  return text;
}

/// Nodes 1 and 2, joined by the links 1 and 2 in both directions.
class ScenarioTest : public Test {
protected:
  Network network;
  std::shared_ptr<Scenario> scenario = network.scenario;
  std::shared_ptr<Node> node1 = network.node(ElementType::Reservoir, 1);
  std::shared_ptr<Node> node2 = network.node(ElementType::Reservoir, 2);
  std::shared_ptr<Link> link1 = network.link(1, 1, 2);
  std::shared_ptr<Link> link2 = network.link(2, 2, 1);
};

} // namespace

TEST_F(ScenarioTest, HoldsNodesAndLinksUnderIdsOfTheirOwn) {
  EXPECT_THAT(scenario->getElements(), ElementsAre(node1, node2, link1, link2));
  EXPECT_EQ(scenario->getElement(1), node1) << "the node before the link";
  EXPECT_EQ(scenario->getElement(3), nullptr);
  EXPECT_THAT([this] { network.node(ElementType::Junction, 2); },
              ThrowsMessage<std::invalid_argument>(HasSubstr("a node with the id 2")));
  EXPECT_THAT([this] { network.link(1, 1, 2); },
              ThrowsMessage<std::invalid_argument>(HasSubstr("a link with the id 1")));
  const auto noSuchWindow = ThrowsMessage<std::out_of_range>("Invalid window index");
  EXPECT_THAT([this] { static_cast<void>(node1->getVectorOfSeries(1)); }, noSuchWindow);
  EXPECT_THAT([this] { scenario->addNode(node1, 1, 9); }, noSuchWindow);
  EXPECT_THAT([this] { scenario->addLink(link1, 1); }, noSuchWindow);
  EXPECT_THAT(ElementsFilter::filterByType(scenario->getElements(), linkTypes), ElementsAre(link1, link2));
  EXPECT_EQ(network.scenario->getSceneryCheck()->getScenario(), scenario);
}

TEST_F(ScenarioTest, LosesALinkWithItsPlacesAndANodeWithItsLinksAndSettings) {
  CoreServiceManager::deleteElementNoDatabase(scenario, link1);
  CoreServiceManager::deleteElementNoDatabase(scenario, link1);
  EXPECT_THAT(scenario->getElements(), ElementsAre(node1, node2, link2));
  EXPECT_THAT(node1->getDownstreamLinks(), IsEmpty());
  EXPECT_NE(scenario->getSettingsManager().getSettings(1), nullptr) << "settings are those of the node 1";
  CoreServiceManager::deleteElementNoDatabase(scenario, node1);
  EXPECT_THAT(scenario->getElements(), ElementsAre(node2));
  EXPECT_THAT(node2->getUpstreamLinks(), IsEmpty());
  EXPECT_THAT(node2->getDownstreamLinks(), IsEmpty());
  EXPECT_EQ(scenario->getSettingsManager().getSettings(1), nullptr);
}

TEST_F(ScenarioTest, PutsALinkOfAnotherKindIntoTheSamePlace) {
  link1->setName("Canal");
  const auto changed = CoreServiceManager::changeLinkTypeNoDatabase(link1, ElementType::ArtificialLink, scenario);
  EXPECT_THAT(scenario->getElements(), ElementsAre(node1, node2, changed, link2));
  EXPECT_EQ(changed->getElementType()->id, 10);
  EXPECT_EQ(changed->getName(), "Canal");
  EXPECT_EQ(changed->getSeriesInput(), link1->getSeriesInput());
  EXPECT_THAT(node1->getDownstreamLinks(), ElementsAre(changed));
  EXPECT_THAT(node2->getUpstreamLinks(), ElementsAre(changed));
  for (const auto type : {ElementType::ArtificialLink, ElementType::Reservoir})
    EXPECT_THROW(CoreServiceManager::changeLinkTypeNoDatabase(link1, type, scenario), std::invalid_argument);
}

TEST_F(ScenarioTest, CopiesADemandWithItsSeriesButWithoutItsLinks) {
  const auto drain = std::dynamic_pointer_cast<DrainDemand>(network.node(ElementType::DrainDemand, 5));
  network.link(3, 1, 5);
  drain->setName("Foz");
  drain->setX(-43.5);
  drain->setY(-18.25);
  drain->hostValues = {1.0, 2.0};
  drain->hostDrainState = 7;
  drain->addWindow(std::make_shared<Container<SerieType>>());
  drain->getWindows()[1]->set(SerieType::WaterDemand, drain->getVectorOfSeries(0).at(1));
  drain->getVectorOfSeries(0).at(1)->fill(3.0, scenario->getInterval());
  const std::string before = shown(*drain);
  const auto copy = std::dynamic_pointer_cast<DrainDemand>(drain->copy());
  drain->getVectorOfSeries(0).at(1)->fill(4.0);
  EXPECT_EQ(shown(*copy), before) << "its series are its own";
  EXPECT_EQ(copy->hostDrainState, 7);
  EXPECT_THAT(copy->getUpstreamLinks(), IsEmpty());
}

TEST(ElementFactoryTest, MakesNoElementOfAGenericKind) {
  for (const ElementType kind : {ElementType::Demand, ElementType::Link})
    EXPECT_THAT([kind] { static_cast<void>(ElementFactory::make(kind)); },
                ThrowsMessage<std::invalid_argument>("ElementFactory::make: invalid element type"));
}
