#include "support/CommandTest.h"

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class ErrorReportTest : public CommandTest {
protected:
  /// The one line of an import that must fail.
  static std::string errorOf(const std::vector<std::string>& words) {
    const Ending ending = import(words);
    EXPECT_EQ(ending.exitCode, 1) << ending.err;
    EXPECT_EQ(ending.out, "");
    EXPECT_THAT(ending.err, AllOf(StartsWith("lagomare: error: "), EndsWith("\n"), Not(HasSubstr("sto"))));
    EXPECT_EQ(ending.err.find('\n'), ending.err.size() - 1);
    return ending.err;
  }
};

TEST_F(ErrorReportTest, SaysWhatWhereAndHowToMendIt) {
  const std::vector<std::pair<const char*, const char*>> cases{
      {"update LgmVazNat set Valor = 'abc' where Data = 5",
       "basin.db: table LgmVazNat: row 5 of the id 21, column Valor holds \"abc\" where a number must stand (query: "
       "select NumPto, Valor from LgmVazNat)"},
      {"update Tk_Res_FEA set VolMin = null", "row 1 of the id 1, column VolMin is empty where a number must stand"},
      {"update LgmDemPrior set Valor = 1e10", "column Valor holds \"10000000000\", which does not fit: a priority"},
      {"insert into LgmResEvap values ('x', 1, 1)", "table LgmResEvap: row 1, column NumPto holds \"x\" where a whole"},
      {"insert into LgmFrontEH values (2, 'half')", "table LgmFrontEH: row 1 of the id 2, column Valor holds \"half\""},
      {"update Tk_Gerais set DataHoraIni = null", "row 1, column DataHoraIni is empty where a date must stand"},
      {"update Tk_Gerais set Duracao = null", "table Tk_Gerais: row 1, column Duracao is empty where a whole"},
      {"insert into LgmDemPrior values (2, 1, 5)",
       "table LgmDemPrior: a row has the id 2, which is a reservoir's and no demand's;"},
      {"update LgmResPrior set Valor = -2", "\"-2\", which does not fit: a priority has 32 bits, one of a state no"},
      {"update Tk_Gerais set Duracao = 0", "period is empty: its duration, column Duracao of table Tk_Gerais, is 0"},
      {"update Tk_Gerais set Duracao = 9000", "years from 2000 leads past the year 9999; correct the project's start"},
      {"drop table LgmResCAV", "no such table: LgmResCAV; the project lacks what the 2013 dialect needs"},
      {"alter table Tk_Res_FEA drop column Subsist", "no such column: Subsist; the project lacks what the 2013"},
      {"update Tk_Pas_FEA set NumPonto = 1",
       "a node with the id 1; give every reservoir, demand and junction an id of"},
      {"update Tk_Lnk_FEA set NoFim = 4242 where UID = 4", "link 4 ends at node 4242, which the project lacks"},
      {"update Tk_Lnk_FEA set NoIni = 9 where UID = 3", "link 3 begins at node 9, which the project lacks"}};
  for (const auto& [sql, text] : cases)
    EXPECT_THAT(errorOf({project(sql)}), HasSubstr(text)) << sql;
}

TEST_F(ErrorReportTest, TellsTheDialectsApart) {
  project();
  EXPECT_THAT(errorOf({"basin.db", "--dialect", "2010"}),
              HasSubstr("DefGerais; the project may be of the other dialect: "
                        "try --dialect 2013"));
  runSql("basin.db", "create table DefGerais (a)");
  EXPECT_THAT(errorOf({"basin.db"}),
              HasSubstr("holds both the table DefGerais (dialect 2010) and Tk_Gerais (dialect 2013)"));
  // A question that fails is no answer.
  runSql("basin.db", "drop table DefGerais; create view DefGerais as select unknown() as a");
  EXPECT_THAT(errorOf({"basin.db"}), HasSubstr("cannot be found out: "));
  runSql("basin.db", "drop view DefGerais; drop table Tk_Gerais");
  EXPECT_THAT(errorOf({"basin.db"}), HasSubstr("holds neither the table DefGerais (dialect 2010) nor Tk_Gerais"));
}

TEST_F(ErrorReportTest, OfAnExecutableOfOnesOwnAMissingTableIsToldOrSilent) {
  project();
  const std::string count2010 = "case \"$2\" in *count*DefGerais) ";
  for (const std::string missing : {"exit 1", "> query-result.txt", "echo no DefGerais >&2; > query-result.txt"})
    EXPECT_EQ(import({"basin.db", "--quiet", "--query-executable",
                      executable(count2010 + missing + "; exit;; esac; answer \"$@\"")})
                  .exitCode,
              0)
        << missing;
  const std::string repeats = "echo \"error: locked: $2 .\" > query-result.txt";
  EXPECT_THAT(
      errorOf({"basin.db", "--query-executable", executable(count2010 + repeats + "; exit;; esac; answer \"$@\"")}),
      HasSubstr("cannot be found out: locked"));
  EXPECT_THAT(errorOf({"basin.db", "--query-executable", executable("exit")}), HasSubstr("own query did not answer"));
}

TEST_F(ErrorReportTest, SaysWhyAFileCannotBeOpened) {
  writeFile("text.mdb", "no database at all");
  EXPECT_THAT(errorOf({"text.mdb"}), AllOf(HasSubstr("DefGerais"), HasSubstr("Tk_Gerais"),
                                           HasSubstr("'text.mdb' is neither a SQLite nor an Access database")));
  EXPECT_THAT(errorOf({"no\nfile"}), HasSubstr("the project no\\nfile: No such file or directory"));
  EXPECT_THAT(errorOf({"tmp"}), HasSubstr("it is a folder"));
  EXPECT_THAT(errorOf({project(), "--query-executable", "none"}), HasSubstr("start the query executable /"));
  EXPECT_THAT(errorOf({"basin.db", "--query-executable", "basin.db"}), HasSubstr("basin.db: Permission denied"));
}
