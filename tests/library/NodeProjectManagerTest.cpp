#include "ImportFixture.h"

#include "access/FieldError.h"
#include "model/TeluUtmDegreeConversion.h"

#include <utility>

using namespace Lagomare;
using namespace testing;

namespace {

class NodeProjectManagerTest : public DialectTest {};

} // namespace

INSTANTIATE_TEST_SUITE_P(Dialects, NodeProjectManagerTest, bothDialects, dialectName);

TEST_P(NodeProjectManagerTest, ReadsNamePositionAndNaturalFlowOfEveryKind) {
  const auto scenario = load(R"(insert into reservoir (id, name, x, y) values (30, 'Açude Velho', 472297.5, 7986229);
    insert into demand (id, name) values (20, null); insert into junction (id, name) values (10, ''), (4, 'first');
    insert into junction values (4, 'second', 'nowhere', 0);
    insert into flow select id, id * month from month, (select 30 id union all select 20 union all select 4);
    insert into flow values (99, 'no element');)");
  EXPECT_EQ(scenario->getElements().size(), 4U);
  const auto reservoir = find(scenario, 30);
  EXPECT_EQ(std::make_pair(reservoir->getX(), reservoir->getY()),
            TeluUtmDegreeConversion::utmToDegree(472297.5, 7986229));
  EXPECT_EQ(reservoir->getName(), "Açude\u00A0Velho");
  EXPECT_EQ(find(scenario, 20)->getName(), "");
  EXPECT_EQ(find(scenario, 10)->getName(), "");
  EXPECT_EQ(find(scenario, 4)->getName(), "first") << "further rows of an id are not read";
  for (const unsigned id : {30U, 20U, 4U})
    EXPECT_EQ(valuesOf(*find(scenario, id), SerieType::NaturalAffluentFlow).at(11), 12 * id);
  EXPECT_THAT(valuesOf(*find(scenario, 10), SerieType::NaturalAffluentFlow), IsEmpty());
}

TEST_P(NodeProjectManagerTest, SaysWhereACoordinateIsNoNumber) {
  const bool is2010 = GetParam() == &dialect2010;
  EXPECT_THAT([] { import("insert into demand (id, x) values (1, 'east')"); },
              Throws<InvalidField>(Property(&FieldError::column, Eq(is2010 ? 3U : 2U))));
  EXPECT_THAT([] { import("insert into junction (id, y) values (1, '1e999')"); },
              Throws<FieldOutOfRange>(Property(&FieldError::column, Eq(is2010 ? 4U : 3U))));
}
