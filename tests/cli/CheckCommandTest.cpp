#include "support/CommandTest.h"
#include "support/Program.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class CheckCommandTest : public CommandTest {
protected:
  static Ending check(std::vector<std::string> words) {
    words.insert(words.begin(), {LAGOMARE, "check"});
    return run(words);
  }
};

TEST_F(CheckCommandTest, TellsWhereEachOfTenFaultsIsAndHowToMendIt) {
  project(
      "update LgmVazNat set Valor = 'abc' where Data = 5; insert into LgmDemPrior values (11, 2, -4);"
      "update Tk_Lnk_FEA set NoFim = 4242 where UID = 4; drop table LgmResCAV; update Tk_Gerais set Duracao = '1 ano';"
      "insert into LgmVazNat values (77, null, 1); update LgmLnkCmaxSC set Valor = '12,5';"
      "insert into Tk_Pas_FEA values (21, 'Dois', 1, 2); update Tk_Res_FEA set VolIni = 5, Nome = 'A' where NumPonto = "
      "1;"
      "update Tk_Dem_FEA set NumPonto = '' where NumPonto = 12; insert into LgmLnkCmaxSC values (2, 1, 9);"
      "update Tk_Dem_FEA set Coord_X = 8000000, Coord_Y = 520000 where NumPonto = 11");
  const Ending ending = check({"basin.db"});
  EXPECT_EQ(ending.exitCode, 1);
  EXPECT_EQ(ending.err, "");
  EXPECT_THAT(ending.out, StartsWith("basin.db (dialect 2013): "));
  for (const char* const line :
       {"LgmVazNat, row 5, id 21, column Valor: \"abc\" stands where a number must stand\n",
        "LgmDemPrior, row 3, id 11 (Cidade), column Valor: \"-4\" does not fit\n",
        "Tk_Lnk_FEA, row 4, id 4 (D), column NoFim: there is no node 4242\n",
        "LgmResCAV: there is no table LgmResCAV\n", "Tk_Gerais, row 1, column Duracao: \"1 ano\" comes in as 1\n",
        "LgmVazNat, row 13, id 77, column NumPto: ",
        "LgmLnkCmaxSC, row 1, id 3 (C), column Valor: \"12,5\" comes in as 12\n",
        "LgmLnkCmaxSC, row 2, id 2 (Volta), column Valor: \"9\" stays behind",
        "LgmLnkCmaxSC               2           1           1\n",
        "Tk_Pas_FEA, row 2, id 21: ", "Tk_Res_FEA, row 1, id 1 (A): minimum 10, initial 5, maximum 100.5\n",
        "Tk_Dem_FEA, row 2, column NumPonto: an empty field stands where an id must stand\n",
        "-42 degrees; the two may be in each other's place\n",
        "  To mend: Write the number with a decimal point, without thousands separators and without a unit.\n",
        "LgmVazNat                 13          12           1\n"})
    EXPECT_THAT(ending.out, HasSubstr(line));
}

TEST_F(CheckCommandTest, EndsByWhatItFound) {
  EXPECT_EQ(check({project()}).exitCode, 0);
  EXPECT_EQ(check({"basin.db", "--strict"}).exitCode, 1);
  EXPECT_EQ(check({"basin.db", "--format", "xml"}).exitCode, 2);
  EXPECT_EQ(check({}).exitCode, 2);
  EXPECT_THAT(check({"basin.db", "--dialect", "2010"}).out,
              AllOf(StartsWith("basin.db (dialect 2010): 1 error, "), HasSubstr("but the table Tk_Gerais of "),
                    Not(HasSubstr("not taken"))));
  EXPECT_THAT(check({"none.db"}).err, HasSubstr("none.db: No such file"));
  writeFile("basin.ldb", "");
  EXPECT_THAT(check({"basin.db"}).out, HasSubstr("there is basin.ldb"));
}

TEST_F(CheckCommandTest, ListsTenOfEachCodeUnlessAllAreWanted) {
  project("with recursive n(i) as (select 101 union all select i + 1 from n limit 12)"
          "insert into LgmVazNat select i, null, 1 from n");
  EXPECT_THAT(check({"basin.db"}).out,
              AllOf(HasSubstr("id 110,"), Not(HasSubstr("id 111,")), HasSubstr("and 2 more; ")));
  EXPECT_THAT(check({"basin.db", "--all"}).out, AllOf(HasSubstr("id 112,"), Not(HasSubstr("and 2 more"))));
}

TEST_F(CheckCommandTest, TheRulesAreThePublishedOnes) { EXPECT_EQ(check({"--rules"}).out, readFile(FAULTS_MD)); }

TEST_F(CheckCommandTest, ComesBeforeAnImport) {
  project("insert into LgmVazNat values (77, null, 1)");
  const Ending warned = import({"basin.db", "--quiet", "--json", "out.json"});
  EXPECT_EQ(warned.exitCode, 0);
  EXPECT_THAT(warned.err, AllOf(StartsWith("lagomare: warning: basin.db: "), HasSubstr("rows not taken: 2, "),
                                EndsWith("; lagomare check basin.db lists them\n")));
  project("with recursive n(i) as (select 5 union all select i + 1 from n limit 12)"
          "insert into Tk_Lnk_FEA select i, '', 1, 90, 0, 0 from n; update Tk_Gerais set TipoSimul = ''");
  std::filesystem::copy_file("basin.db", "São Chico's.db");
  EXPECT_THAT(import({"--utm-zone", "24k", "São Chico's.db", "--dialect=2013"}).err,
              EndsWith("see lagomare check --dialect 2013 --utm-zone 24S 'São Chico'\\''s.db'\n"));
  const Ending failed = import({"basin.db", "--json", "other.json"});
  EXPECT_EQ(failed.exitCode, 1);
  EXPECT_THAT(failed.err, StartsWith("lagomare: not-a-number: Tk_Gerais, row 1, column TipoSimul: an empty field"));
  EXPECT_THAT(failed.err, EndsWith("\nlagomare: error: basin.db: 12 errors, nothing is imported; see lagomare check "
                                   "basin.db\n"));
  EXPECT_EQ(std::count(failed.err.begin(), failed.err.end(), '\n'), 11);
  EXPECT_FALSE(std::filesystem::exists("other.json"));
  project("update Tk_Gerais set TipoSimul = 1; update LgmVazNat set Valor = 'abc'");
  EXPECT_EQ(import({"basin.db"}).exitCode, 3);
}
