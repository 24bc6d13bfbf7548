#include "ImportFixture.h"

#include "model/Link.h"

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

using namespace testing;

namespace {

class LinkProjectManagerTest : public DialectTest {};

const std::string nodes = R"(insert into reservoir (id) values (1); insert into demand (id) values (2);
  insert into junction (id) values (3);)";

} // namespace

INSTANTIATE_TEST_SUITE_P(Dialects, LinkProjectManagerTest, bothDialects, dialectName);

TEST_P(LinkProjectManagerTest, JoinsNodesOfEveryKind) {
  const auto scenario = load(nodes + R"(
    insert into link values (11, 'Rio', 1, 2, 0.35), (10, 'Foz', 2, 3, 0), (3, 'same id', 1, 3, 1), (11, 'twice', 3, 3, 'x');
    insert into linkLimit values (11, 2, 'state 2'), (11, 1, 7.5), (11, 1, 'second row'), (12, 1, 'no link');)");
  const auto link = find<Link>(scenario, 11);
  EXPECT_EQ(link->getName(), "Rio");
  EXPECT_EQ(link->upstream.lock(), find(scenario, 1));
  EXPECT_EQ(link->downstream.lock(), find(scenario, 2));
  EXPECT_THAT(find(scenario, 2)->getUpstreamLinks(), ElementsAre(link));
  EXPECT_THAT(find(scenario, 2)->getDownstreamLinks(), ElementsAre(find<Link>(scenario, 10)));
  EXPECT_THAT(find(scenario, 3)->getUpstreamLinks(), SizeIs(2)) << "node 3 and link 3 stand side by side";
  EXPECT_EQ(scenario->getElements().size(), 6U);
  EXPECT_EQ(valuesOf(*link, SerieType::LinkLoss), std::vector<double>(12, 35.0));
  EXPECT_EQ(valuesOf(*link, SerieType::LinkLimitSerie), std::vector<double>(12, 7.5));
  EXPECT_THAT(valuesOf(*find<Link>(scenario, 10), SerieType::LinkLimitSerie), IsEmpty());
}

TEST_P(LinkProjectManagerTest, NamesTheEndThatIsNoNode) {
  for (const auto& [ends, side] : {std::pair("9, 1", "upStream"),
                                   {"1, 9", "downStream"},
                                   {"9, 9", "upStream"},
                                   {"1, 10", "downStream"},
                                   {"11, 1", "upStream"}})
    EXPECT_THAT(
        [text = ends] { import(nodes + "insert into link values (10, 'A', 1, 3, 0), (11, 'B', " + text + ", 0)"); },
        ThrowsMessage<std::runtime_error>(std::string("LinkProjectManager::loadGeneralInfo: invalid ") + side));
}
