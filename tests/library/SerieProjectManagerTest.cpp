#include "ImportFixture.h"

#include "access/LagomareProjectManager.h"
#include "elements/2010/SerieProjectManager.h"
#include "elements/2013/SerieProjectManager.h"
#include "model/ElementFactory.h"

#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

using namespace testing;

namespace {

using Elements = std::map<unsigned, std::shared_ptr<Element>>;
using Load = void (*)(const Interval&, const Elements&);

constexpr SerieType flow = SerieType::NaturalAffluentFlow;

const Load profile2010 = [](const auto& interval, const auto& elements) {
  Lagomare2010::SerieProjectManager::load(flow, interval, "Perfil", elements, "Pto", "U", "where EstHidr = 1");
};
const Load sequence2010 = Lagomare2010::SerieProjectManager::loadNatFlow;
const Load sequence2013 = [](const auto& interval, const auto& elements) {
  Lagomare2013::SerieProjectManager::load(flow, interval, "LgmVazNat", elements, "");
};

/// Lays an answer on two junctions, whose flows hold 9.0, over fourteen months.
class SerieProjectManagerTest : public WorkingDirectoryTest, public WithParamInterface<Load> {
protected:
  SerieProjectManagerTest() {
    for (const unsigned id : {1U, 2U}) {
      elements[id] = ElementFactory::make(ElementType::Junction);
      elements[id]->getSeriesInput()->find(flow)->fill(9.0, interval);
    }
    LagomareProjectManager::getInstance("")->setApiExecutable(":");
  }

  void lay(const std::string& answer) {
    write("query-result.txt", answer);
    GetParam()(interval, elements);
  }

  [[nodiscard]] std::vector<double> values(unsigned id) const { return valuesOf(*elements.at(id), flow); }

  static std::string rows(int count) {
    std::string text;
    for (int value = 1; value <= count; ++value)
      text += "1 " + std::to_string(value) + " .\n";
    return text;
  }

  const Interval interval{Date(2000, 1, 1), Date(2001, 2, 1), MonthlyType()};
  Elements elements;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Layouts, SerieProjectManagerTest, Values(profile2010, sequence2010, sequence2013));

TEST_P(SerieProjectManagerTest, LaysRowsOnMonths) {
  const bool isProfile = GetParam() == profile2010;
  lay(rows(20));
  EXPECT_THAT(values(1), ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, isProfile ? 1 : 13, isProfile ? 2 : 14));
  EXPECT_THAT(values(2), Each(9.0));
}

TEST_P(SerieProjectManagerTest, KeepsWhatTheSeriesHeldWhereRowsAreTooFew) {
  lay(rows(1));
  EXPECT_THAT(values(1), ElementsAre(1, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, GetParam() == profile2010 ? 1 : 9, 9));
}

TEST_P(SerieProjectManagerTest, ConvertsAllRowsOfAnIdBeforeItLaysOne) {
  EXPECT_THAT([this] { lay(rows(20) + "1 x .\n2 5 .\n"); }, ThrowsMessage<std::invalid_argument>("stod"));
  EXPECT_THAT(values(1), Each(9.0));
  EXPECT_THAT([this] { lay("1 5 .\n2 .\n"); }, ThrowsMessage<std::out_of_range>("a row of the id 2 has no column 1"));
  EXPECT_EQ(values(1).front(), 5.0) << "the series of earlier ids stay filled";
}

TEST_P(SerieProjectManagerTest, LooksTheSeriesUpBeforeItConverts) {
  elements[2] = ElementFactory::make(ElementType::Basin);
  EXPECT_THAT([this] { lay("2 x .\n1 5 .\n"); }, ThrowsMessage<std::invalid_argument>("Invalid serie type!"));
  EXPECT_EQ(values(1).front(), 5.0);
}

TEST_P(SerieProjectManagerTest, SkipsIdsOfOtherElements) {
  elements[2] = ElementFactory::make(ElementType::Junction);
  lay("3 x .\n1 5 .\n");
  EXPECT_EQ(elements.size(), 2U);
  EXPECT_EQ(values(1).front(), 5.0);
  EXPECT_TRUE(elements[2]->getSeriesInput()->find(flow)->getInterval().isEmpty());
}
