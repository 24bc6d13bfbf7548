#include "loader/LagomareProjectLoader.h"

#include "model/ElementFactory.h"
#include "model/ExecutionContinuous.h"
#include "model/Link.h"
#include "model/Node.h"
#include "model/PriorityScenario.h"

#include <gmock/gmock.h>

#include <sstream>

using namespace testing;

namespace {

class Network {
public:
  /// Reservoirs 1, 2, … in this order, then the junction 8 and the demand 9 and the links, as "10:1>2 11:2>1".
  explicit Network(const std::string& links, unsigned reservoirs = 3) {
    for (unsigned id = 1; id <= reservoirs; ++id)
      add(ElementType::Reservoir, id);
    if (reservoirs < 8) {
      add(ElementType::Junction, 8);
      add(ElementType::HumanDemand, 9);
    }
    std::istringstream text(links);
    unsigned id = 0, up = 0, down = 0;
    for (char mark = 0; text >> id >> mark >> up >> mark >> down;)
      join(id, up, down);
  }

  void join(unsigned id, unsigned up, unsigned down) {
    const auto link = std::dynamic_pointer_cast<Link>(ElementFactory::make(ElementType::NaturalLink));
    link->bdId = id;
    scenario_->addLink(link, 0);
    const auto upstream = std::dynamic_pointer_cast<Node>(scenario_->getElement(up));
    const auto downstream = std::dynamic_pointer_cast<Node>(scenario_->getElement(down));
    link->upstream = upstream;
    link->downstream = downstream;
    upstream->addDownstream(link);
    downstream->addUpstream(link);
  }

  /// The links after the fold: "=" for a natural link that became a bidirectional artificial one.
  std::string folded() {
    LagomareProjectLoader::transformBirectionalLinks(scenario_);
    std::string text;
    std::size_t links = 0, outgoing = 0, incoming = 0;
    for (const auto& element : scenario_->getElements()) {
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

private:
  void add(ElementType type, unsigned id) {
    const auto node = std::dynamic_pointer_cast<Node>(ElementFactory::make(type));
    node->bdId = id;
    scenario_->addNode(node, 0, id);
  }

  std::shared_ptr<Scenario> scenario_ =
      std::make_shared<PriorityScenario>(std::make_shared<ExecutionContinuous>(), 1, Interval(), "");
};

std::string fold(const std::string& links) { return Network(links).folded(); }

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
  EXPECT_EQ(Network("", 0).folded(), "");
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
  Network star("", 5001);
  for (unsigned id = 2; id <= 5001; ++id) {
    star.join(id, 1, id);
    star.join(id + 5000, id, 1);
  }
  const std::string folded = star.folded();
  EXPECT_EQ(std::count(folded.begin(), folded.end(), '='), 5000);
  EXPECT_EQ(std::count(folded.begin(), folded.end(), '>'), 0);
}
