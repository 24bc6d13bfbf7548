#include "Network.h"
#include "loader/LagomareProjectLoader.h"
#include "model/Link.h"
#include "model/Node.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

#include <algorithm>
#include <sstream>

namespace {

/// The links after the fold: "=" for a natural link that became a bidirectional artificial one.
std::string fold(const std::shared_ptr<Scenario>& scenario) {
  LagomareProjectLoader::transformBirectionalLinks(scenario);
  std::string text;
  std::size_t links = 0, outgoing = 0, incoming = 0;
  for (const auto& element : scenario->getElements()) {
    if (const auto node = std::dynamic_pointer_cast<Node>(element)) {
      outgoing += node->getDownstreamLinks().size();
      incoming += node->getUpstreamLinks().size();
      continue;
    }
    const auto& link = dynamic_cast<const Link&>(*element);
    EXPECT_EQ(link.getElementType()->id, link.getIsBidirectional() ? 10 : 11);
    text += (links++ == 0 ? "" : " ") + std::to_string(link.bdId) + ':' + std::to_string(link.upstream.lock()->bdId) +
            (link.getIsBidirectional() ? '=' : '>') + std::to_string(link.downstream.lock()->bdId);
  }
  EXPECT_EQ(outgoing, links) << "the nodes hold other links than the scenario";
  EXPECT_EQ(incoming, links);
  return text;
}

/// The same of links, as "10:1>2 11:2>1", between the reservoirs 1 to 3, the junction 8 and the demand 9.
std::string fold(const std::string& links) {
  Network network;
  for (const unsigned id : {1U, 2U, 3U})
    network.node(ElementType::Reservoir, id);
  network.node(ElementType::Junction, 8);
  network.node(ElementType::HumanDemand, 9);
  std::istringstream text(links);
  unsigned id = 0, up = 0, down = 0;
  for (char mark = 0; text >> id >> mark >> up >> mark >> down;)
    network.link(id, up, down);
  return fold(network.scenario);
}

} // namespace

TEST(BidirectionalLinksTest, KeepTheLinkOfTheReservoirMetFirst) {
  EXPECT_EQ(fold("10:1>2 11:2>1"), "10:1=2");
  EXPECT_EQ(fold("10:2>1 11:1>2"), "11:1=2");
  EXPECT_EQ(fold("10:2>3 11:1>2 12:3>2 13:2>1 14:3>1"), "10:2=3 11:1=2 14:3>1");
}

TEST(BidirectionalLinksTest, LeaveWhatIsNoPairOfReservoirs) {
  EXPECT_EQ(fold("10:1>2 11:2>3 12:3>1"), "10:1>2 11:2>3 12:3>1");
  EXPECT_EQ(fold("10:1>8 11:8>1 12:9>1 13:1>9 14:8>9 15:9>8"), "10:1>8 11:8>1 12:9>1 13:1>9 14:8>9 15:9>8");
  EXPECT_EQ(fold("10:1>1 11:2>2 12:2>2 13:1>2"), "10:1>1 11:2>2 12:2>2 13:1>2") << "links to themselves";
  EXPECT_EQ(fold(Network().scenario), "");
}

TEST(BidirectionalLinksTest, PairSeveralLinksBetweenTwoReservoirsInTheirOrder) {
  EXPECT_EQ(fold("10:1>2 11:1>2 12:2>1"), "10:1=2 11:1>2");
  EXPECT_EQ(fold("12:2>1 11:1>2 10:1>2"), "11:1=2 10:1>2");
  EXPECT_EQ(fold("10:1>2 11:2>1 12:2>1"), "10:1=2 12:2>1");
  EXPECT_EQ(fold("11:2>1 12:2>1 10:1>2"), "12:2>1 10:1=2");
  EXPECT_EQ(fold("10:1>2 11:2>1 12:1>2 13:2>1 14:2>1"), "10:1=2 12:1=2 14:2>1");
}

TEST(BidirectionalLinksTest, FindALinkWhoseIdANodeHasToo) {
  EXPECT_EQ(fold("1:1>2 2:2>1 3:3>1 8:1>3"), "1:1=2 8:1=3");
  EXPECT_EQ(fold("2:1>2 1:2>1 3:1>2"), "2:1=2 3:1>2");
}

TEST(BidirectionalLinksTest, FoldThousandsOfLinksOfOneReservoir) {
  Network star;
  for (unsigned id = 1; id <= 5001; ++id)
    star.node(ElementType::Reservoir, id);
  for (unsigned id = 2; id <= 5001; ++id) {
    star.link(id, 1, id);
    star.link(id + 5000, id, 1);
  }
  const std::string folded = fold(star.scenario);
  EXPECT_EQ(std::count(folded.begin(), folded.end(), '='), 5000);
  EXPECT_EQ(std::count(folded.begin(), folded.end(), '>'), 0);
}
