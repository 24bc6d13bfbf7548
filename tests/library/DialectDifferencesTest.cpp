#include "ImportFixture.h"

#include "model/Link.h"

#include <stdexcept>
#include <string>

using namespace testing;

namespace {

class Dialect2010Test : public ImportTest {
protected:
  static auto load(const std::string& sql, const std::string& sql2010) {
    return ImportTest::load(dialect2010, sql, sql2010);
  }
};

class Dialect2013Test : public ImportTest {};

} // namespace

TEST_F(Dialect2010Test, TellsOfAColumnThatTheTableLacks) {
  EXPECT_THAT([] { load("insert into junction (id) values (7)", "alter table Pontos drop column Y"); },
              ThrowsMessage<std::out_of_range>("a row of the id 7 has no column 4"));
  EXPECT_THAT([] { load("", "alter table DefGerais drop column MesIni"); }, Throws<std::out_of_range>());
}

TEST_F(Dialect2010Test, SkipsRowsOfReservoirsAndLinksThatItLacks) {
  const auto scenario =
      load("insert into junction (id) values (1), (2); insert into link (id, up, down, loss) values (3, 1, 2, 0.5);",
           "insert into Res values (9, 'x', 'x', 'x');"
           "insert into ResSubsist values (9, 'x');"
           "insert into LinksDados values (9, '', '', 'x'), (3, '', '', 'x');");
  EXPECT_EQ(scenario->getElements().size(), 3U);
  EXPECT_EQ(valuesOf(*find<Link>(scenario, 3), SerieType::LinkLoss).at(0), 50.0);
}

TEST_F(Dialect2013Test, RefusesAnIdOfTwoNodes) {
  EXPECT_THAT([] { load(dialect2013, "insert into reservoir (id) values (7); insert into junction (id) values (7)"); },
              ThrowsMessage<std::invalid_argument>(EndsWith("already holds a node with the id 7")));
}
