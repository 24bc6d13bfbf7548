#include "model/ElementType.h"
#include "model/EnumSerieTypeFactory.h"
#include "model/EnumUnitFactoryByType.h"

#include <gmock/gmock.h>
#include <stdexcept>
#include <string>
#include <vector>

#include <set>

using namespace testing;

namespace {

/// The ids, ascending; idOf tells that of a value.
template <typename Values, typename IdOf>
std::string idsOf(const Values& values, IdOf idOf) {
  std::multiset<int> ids;
  for (const auto& value : values)
    ids.insert(idOf(value));
  std::string text;
  for (const int id : ids)
    text += (text.empty() ? "" : " ") + std::to_string(id);
  return text;
}

const auto groupIds = [](const auto& group) { return idsOf(group, [](auto type) { return static_cast<int>(type); }); };
const auto valueIds = [](const auto& values) { return idsOf(values, [](const auto& value) { return value->id; }); };

} // namespace

TEST(VocabularyTest, GroupsKindsOfElementsWithoutTheGenericOnes) {
  EXPECT_EQ(groupIds(reservoirAndDemandTypes), "0 2 3 4 5 6");
  EXPECT_EQ(groupIds(demandTypes), "2 3 4 5 6");
  EXPECT_EQ(groupIds(consumptiveDemandTypes), "2 3 4 5");
  EXPECT_EQ(groupIds(reservoirTypes) + ", " + groupIds(junctionTypes) + ", " + groupIds(basinTypes), "0, 7, 8");
  EXPECT_EQ(groupIds(nodeTypes), "0 2 3 4 5 6 7 8");
  EXPECT_EQ(groupIds(linkTypes), "10 11");
  for (const std::string& ids :
       {groupIds(allElementTypes), valueIds(concreteKindValues), valueIds(concreteKindValuesCopy)})
    EXPECT_EQ(ids, "0 2 3 4 5 6 7 8 10 11");
  EXPECT_EQ(valueIds(linkKindValues), "10 11");
  EXPECT_EQ(valueIds(genericKindValues), "0 1 7 9");
  EXPECT_EQ(valueIds(allKindValues), "0 1 2 3 4 5 6 7 8 9 10 11");
}

TEST(VocabularyTest, FindsValuesByTheirNumbers) {
  for (const auto& values : {inputSerieTypes, resultSerieTypes})
    for (const auto& value : values)
      EXPECT_EQ(EnumSerieTypeFactory::makeSerieType(static_cast<SerieType>(value->id)).name, value->name);
  EXPECT_THROW(static_cast<void>(EnumSerieTypeFactory::makeSerieType(static_cast<SerieType>(4))),
               std::invalid_argument);
  EXPECT_EQ(valueIds(unitValues), "0 1 2 3 4 5 6 7 8 9 10 11 12 13 13 15 16");
  EXPECT_EQ(EnumUnitFactoryByType::makeUnit(Unit::HM3).name, "hm³");
  EXPECT_THAT(EnumUnitFactoryByType::makeUnit(Unit::KG).name, AnyOf("Kg", "Mg"));
  EXPECT_THROW(static_cast<void>(EnumUnitFactoryByType::makeUnit(static_cast<Unit>(14))), std::invalid_argument);
}

TEST(VocabularyTest, ListsKindsOfSeriesInTheOrderOfDisplay) {
  const auto ids = [](const auto& values) {
    std::vector<int> list;
    for (const auto& value : values)
      list.push_back(value->id);
    return list;
  };
  EXPECT_THAT(ids(inputSerieTypes), ElementsAre(0, 1, 2, 3, 5, 7, 42));
  EXPECT_THAT(ids(resultSerieTypes), ElementsAre(9, 10, 11, 17, 15, 14, 13, 12, 18, 19, 20, 35, 36, 37, 38, 21, 23, 22,
                                                 24, 25, 26, 27, 28, 29, 30, 31, 32, 16, 33, 34, 39, 40, 41));
}
