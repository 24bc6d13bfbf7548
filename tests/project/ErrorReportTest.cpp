#include "support/CommandTest.h"

#include <string>
#include <utility>
#include <vector>

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class ErrorReportTest : public CommandTest {
protected:
  /// The one line of an import without a check that must fail.
  static std::string errorOf(std::vector<std::string> words) {
    words.push_back("--no-check");
    const Ending ending = import(words);
    EXPECT_EQ(ending.exitCode, 1) << ending.err;
    EXPECT_EQ(ending.out, "");
    EXPECT_THAT(ending.err, AllOf(StartsWith("lagomare: error: "), EndsWith("\n")));
    EXPECT_EQ(ending.err.find('\n'), ending.err.size() - 1);
    return ending.err;
  }
};

TEST_F(ErrorReportTest, SaysWhatWhereAndHowToMendIt) {
  const std::vector<std::pair<const char*, const char*>> cases{
      {"update LgmVazNat set Valor = 'abc' where Data = 5",
       "error: basin.db: row 5 (id 21), column 2 holds \"abc\", which is no number that fits; correct it"},
      {"insert into LgmFrontEH values (2, 'half')", "column 2 holds \"half\""},
      {"update Tk_Gerais set Duracao = null", "basin.db: row 1, column 2 holds \"\", which is no whole number"},
      {"insert into LgmDemPrior values (2, 1, 5)",
       "the id of an element of another kind; remove that row (query: select NumPto, Valor from LgmDemPrior)"},
      {"update Tk_Gerais set Duracao = 0", "period is empty: its duration, column Duracao of table Tk_Gerais, is 0"},
      {"drop table LgmResCAV", "basin.db: cannot be read: no such table: LgmResCAV (query: select * from LgmResCAV)"},
      {"update Tk_Lnk_FEA set NoFim = 4242 where UID = 4", "a link begins or ends at a node that the project lacks"}};
  for (const auto& [sql, text] : cases)
    EXPECT_THAT(errorOf({project(sql)}), HasSubstr(text)) << sql;
  EXPECT_THAT(errorOf({project(), "--dialect", "2010"}), HasSubstr("check that it is a project of the dialect 2010"));
}

TEST_F(ErrorReportTest, SaysWhyAFileCannotBeOpened) {
  writeFile("text.mdb", "no database at all");
  EXPECT_THAT(errorOf({"text.mdb"}), AllOf(StartsWith("lagomare: error: text.mdb: "), Not(HasSubstr("dialect"))));
  EXPECT_THAT(errorOf({"no\nfile"}), HasSubstr("the project no\\nfile: No such file or directory"));
  EXPECT_THAT(errorOf({"tmp"}), HasSubstr("it is a folder"));
  EXPECT_THAT(errorOf({project(), "--query-executable", "none"}), HasSubstr("/none: No such file or directory"));
  EXPECT_THAT(errorOf({"basin.db", "--query-executable", "basin.db"}), HasSubstr("basin.db: Permission denied"));
}
