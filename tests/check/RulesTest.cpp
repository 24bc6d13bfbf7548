#include "check/MemoryProject.h"
#include "tools/check/result/CheckResult.h"
#include "tools/check/result/CheckText.h"
#include "tools/check/result/Rule.h"
#include "tools/project/Dialect.h"

#include <gmock/gmock.h>
#include <set>
#include <string>
#include <vector>

using namespace LagomareTools;
using namespace testing;

namespace {

constexpr auto in2010 = Dialect::of2010;
constexpr auto in2013 = Dialect::of2013;

/// A rule, what must happen to a sound project for it to find something, and something like it where it does not.
struct Case {
  const char* code;
  Dialect dialect;
  const char* shows;
  const char* beside;
};

const std::vector<Case> cases{
    {"table-missing", in2010, "drop table ResEvap", "delete from ResEvap"},
    {"table-missing", in2013, "drop table LgmVazNat", "drop table LgmFrontEH; update Tk_Gerais set OptCalc = 0"},
    {"column-missing", in2010, "alter table DemEH drop column Demd", "alter table DemEH drop column Mes"},
    {"column-missing", in2010, "alter table ResAVN drop column Nivel",
     "alter table ResAVN drop column Nivel; delete from ResAVN"},
    {"column-missing", in2013, "alter table Tk_Lnk_FEA drop column Cmin", "update Tk_Lnk_FEA set Cmin = 'none'"},
    {"query-refused", in2010,
     "drop table FrontEH; create view FrontEH as select 1 as EstHidr, abs(-9223372036854775807 - 1) as Valor",
     "drop table FrontEH; create view FrontEH as select 1 as EstHidr, 0.5 as Valor"},
    {"no-settings", in2010, "delete from DefGerais", "insert into DefGerais select * from DefGerais"},
    {"tactical-project", in2010, "update DefGerais set TipoSimul = 2",
     "insert into DefGerais select 2, 0, 2, 1, 2000, 1"},
    {"tactical-project", in2013, "update Tk_Gerais set TipoSimul = '-1'", "update Tk_Gerais set TipoSimul = '0,9'"},
    {"bad-start", in2010, "update DefGerais set MesIni = 13", "update DefGerais set MesIni = 12"},
    {"bad-start", in2013, "update Tk_Gerais set DataHoraIni = null", "update Tk_Gerais set DataHoraIni = '0001-01-31'"},
    {"empty-period", in2013, "update Tk_Gerais set Duracao = 0", "update Tk_Gerais set Duracao = 2"},
    {"period-too-long", in2010, "update DefGerais set Duracao = 8000", "update DefGerais set Duracao = 7999"},
    {"period-too-long", in2013, "update Tk_Gerais set Duracao = 4294967295", "update Tk_Gerais set Duracao = 7999"},
    {"too-many-values", in2010,
     "update DefGerais set Duracao = 7999; with recursive n(i) as (select 2 union all select i + 1 from n limit 5999)"
     "  insert into FrontEH select i, i from n",
     "update DefGerais set Duracao = 7999"},
    {"bad-id", in2010, "update Vazao set Pto = null where rowid = 3", "update Vazao set Pto = 99 where rowid = 3"},
    {"bad-id", in2010, "update DemEH set Dem = 'x' where EstHidr = 2",
     "update DemEH set Dem = 'x', EstHidr = 3 where EstHidr = 2"},
    {"bad-id", in2010, "update Pontos set NumNo = 'x' where NumNo = 4",
     "update Pontos set NumNo = 'x', Tipo = 4 where NumNo = 4"},
    {"id-column-moved", in2010,
     "alter table Links rename to Old; create table Links as select Nome, NumLnk, NoIni, NoFim from Old",
     "alter table Links rename column Nome to Nom"},
    {"not-a-number", in2010, "update Vazao set U = 'abc' where rowid = 5",
     "update Vazao set U = 'abc', Pto = 99 where rowid = 5"},
    {"not-a-number", in2010, "update ResSubsist set Subsist = null", "update LinksDados set Cmin = null"},
    {"not-a-number", in2013, "insert into LgmDemDemSC values (3, 1, '2001-01-01', 'abc')",
     "insert into LgmDemDemSC values (3, 2, '2001-01-01', 'abc')"},
    {"number-out-of-range", in2013, "update Tk_Res_FEA set Subsist = 4294967296",
     "update Tk_Res_FEA set Subsist = 4294967295"},
    {"priority-out-of-range", in2010, "update DemPriorEH set Demr = -1 where EstHidr = 1",
     "update DemPriorEH set Demr = -1; update DefGerais set OptCalc = 1"},
    {"id-of-two-nodes", in2010, "insert into Pontos values (1, 'x', 3, 500900, 8000000)",
     "insert into Pontos values (1, 'x', 2, 500900, 8000000)"},
    {"id-of-two-nodes", in2013, "insert into Tk_Pas_FEA values (1, 'x', 500900, 8000000)",
     "insert into Tk_Pas_FEA values (11, 'x', 500900, 8000000)"},
    {"link-end-unknown", in2010, "update Links set NoFim = 11 where NumLnk = 13",
     "insert into Links values (13, 'd', 2, 11, 1)"},
    {"id-of-other-kind", in2010, "insert into DemEH values (1, 2, 1, 5)",
     "insert into DemEH values (1, 2, 1, 5); update DefGerais set OptCalc = 1"},
    {"id-of-other-kind", in2013, "insert into LgmDemPrior values (1, 7, 5)",
     "insert into LgmDemDemSC values (1, 7, '', 5)"},

    {"further-settings-rows", in2013, "insert into Tk_Gerais select * from Tk_Gerais", ""},
    {"table-not-read", in2010, "update DefGerais set OptCalc = 1",
     "update DefGerais set OptCalc = 1; delete from FrontEH"},
    {"table-not-read", in2010, "delete from Pontos; delete from Links",
     "delete from Pontos where Tipo > 1; delete from Links"},
    {"unknown-kind", in2010, "insert into Pontos values (9, 'x', 4, 1, 2)",
     "insert into Pontos values (9, 'x', 1, 500900, 8000000)"},
    {"unknown-id", in2010, "insert into Vazao values (11, 2000, 1, 3)", "insert into Vazao values (3, 2000, 1, 3)"},
    {"unknown-id", in2013, "insert into LgmDemPrior values (4, 1, 3)", ""},
    {"repeated-id", in2013, "insert into Tk_Pas_FEA values (4, 'x', 1, 2)", ""},
    {"repeated-id", in2010, "insert into LinksCmaxEH values (11, 1, 80)", "insert into LinksCmaxEH values (11, 2, 80)"},
    {"repeated-id", in2010, "insert into FrontEH values (1, 0.6)", "insert into FrontEH values (2, 0.6)"},
    {"rows-beyond-period", in2010, "insert into Vazao values (4, 2001, 1, 3)",
     "insert into Vazao values (4, 2001, 1, 3); update DefGerais set Duracao = 2"},
    {"rows-beyond-year", in2010, "insert into DemEH values (3, 1, 1, 5)", "insert into DemEH values (3, 3, 1, 5)"},
    {"state-not-read", in2013, "update LgmResVmetaSC set EstHidr = 3 where EstHidr = 2",
     "update LgmResVmetaSC set EstHidr = 3 where EstHidr = 2; insert into LgmFrontEH values (2, 0.6)"},
    {"state-not-read", in2013, "insert into LgmResPrior values (1, 3, 3)",
     "insert into LgmResPrior values (1, 3, 3); insert into LgmFrontEH values (2, 0.6)"},
    {"limit-of-other-state", in2013, "insert into LgmLnkCmaxSC values (11, 2, 80)",
     "insert into LgmLnkCmaxSC values (11, 0, 80)"},
    {"two-way-partner", in2010, "insert into Links values (15, 'd', 1, 2, 1), (14, 'e', 2, 1, 1)",
     "insert into Links values (15, 'd', 1, 2, 1), (14, 'e', 4, 1, 1)"},
    {"rows-out-of-order", in2010, "delete from Vazao where Pto = 4 and Mes = 2",
     "delete from Vazao where Pto = 4 and Mes = 12"},
    {"rows-out-of-order", in2013, "update Tk_Gerais set DataHoraIni = '2000-02-01'",
     "update Tk_Gerais set DataHoraIni = '2000-01-31'"},
    {"rows-out-of-order", in2010, "update ResEvap set Mes = 2 where Mes = 3", ""},
    {"states-out-of-order", in2010, "update DemPriorEH set EstHidr = 3 - EstHidr",
     "update DemPriorEH set EstHidr = 3 - EstHidr; update DefGerais set OptCalc = 1"},
    {"month-unreadable", in2013, "update LgmVazNat set Data = null where rowid = 2",
     "update LgmVazNat set Data = '01/02/2000' where rowid = 2"},
    {"month-unreadable", in2010, "update DemEH set Mes = 13 where rowid = 4",
     "update DemEH set Mes = 5 where rowid = 4"},
    {"too-few-rows", in2013, "update Tk_Gerais set Duracao = 2", "update Tk_Gerais set DataHoraIni = '2000-02-01'"},
    {"too-few-rows", in2010, "delete from ResPriorEH where EstHidr = 2",
     "delete from ResPriorEH where EstHidr = 2; update DefGerais set OptCalc = 1"},
    {"element-without-rows", in2010, "delete from DemEH where EstHidr = 2",
     "delete from DemEH where EstHidr = 2; update DefGerais set OptCalc = 1"},
    {"element-without-rows", in2010, "delete from Res where Res = 2", "delete from Vazao where Pto = 2"},
    {"number-cut", in2013, "update LgmVazNat set Valor = '1,5' where rowid = 7",
     "update LgmVazNat set Valor = '1.5 ' where rowid = 7"},
    {"number-cut", in2010,
     "alter table Vazao rename to Old; create table Vazao (Pto, Ano, Mes, U); insert into Vazao "
     "select Pto || '.5', Ano, Mes, U from Old",
     "alter table Vazao rename to Old; create table Vazao (Pto, Ano, Mes, U); insert into Vazao "
     "select Pto || '.00', Ano, Mes, U from Old"},
    {"id-wrapped", in2010, "update Pontos set NumNo = -4 where NumNo = 4; delete from Links where NumLnk < 13",
     "insert into Vazao values (-4, 2000, 1, 3)"},
    {"priority-truncated", in2010, "update DemPriorEH set Demr = 2.5", ""},
    {"column-renamed", in2010, "alter table ResAVN rename column Area to Cota",
     "alter table LinksDados rename column Custo to Area"},

    {"no-natural-flow", in2010, "delete from Vazao where Pto = 4", "delete from Vazao where Pto = 3"},
    {"order-not-checked", in2013, "alter table LgmVazNat drop column Data", ""},
    {"drain-found", in2010, "update DemEH set Demd = 1000 where EstHidr = 1",
     "update DemEH set Demd = case Mes when 7 then 999 else 1000 end"},
    {"drain-found", in2013, "update LgmDemDemSC set Valor = 2000",
     "update LgmDemDemSC set Valor = 2000; update Tk_Gerais set Duracao = 2"},
    {"missing-value-mark", in2010, "update Vazao set U = -9999", "update Vazao set U = 9999"},
    {"missing-value-mark", in2010, "update LinksCmaxEH set Cmax = 1e30", "update LinksCmaxEH set Cmax = 1e9"},
    {"negative-value", in2013, "update LgmVazNat set Valor = -3", "update LgmResEvap set Valor = -3"},
    {"fraction-outside", in2013, "update LgmResVmetaSC set Valor = 75", "update LgmResVmetaSC set Valor = 0"},
    {"fraction-outside", in2013, "update Tk_Lnk_FEA set Coef = 35", "update Tk_Lnk_FEA set Coef = 1"},
    {"boundaries-not-rising", in2010, "insert into FrontEH values ('x', 1), (0, 0.6)",
     "insert into FrontEH values (2, 0.6)"},
    {"volumes-out-of-order", in2013, "update Tk_Res_FEA set VolIni = 5", "update Tk_Res_FEA set VolIni = 10"},
    {"curve-too-short", in2010, "delete from ResAVN where Nivel > 401", "delete from ResAVN where Res = 2"},
    {"curve-not-rising", in2010, "update ResAVN set Nivel = 400 where Nivel = 405", ""},
    {"curve-not-covering", in2013, "delete from LgmResCAV where Volume > 85", ""},
    {"position-outside-zone", in2013, "update Tk_Pas_FEA set Coord_X = -43.5, Coord_Y = -18",
     "update Tk_Pas_FEA set Coord_X = 830000"},
    {"position-shared", in2010, "update Pontos set X = 500000 where NumNo = 2",
     "update Pontos set X = 500000, Y = Y + 1 where NumNo = 2"},
    {"name-empty", in2010, "update Links set Nome = null where NumLnk = 12",
     "update Links set Nome = '-' where NumLnk = 12"},
    {"name-repeated", in2013, "update Tk_Pas_FEA set Nome = 'Sul'", "update Tk_Pas_FEA set Nome = 'a'"},
    {"link-to-itself", in2010, "insert into Links values (14, 'd', 1, 1, 1)", ""},
    {"link-repeated", in2010, "insert into Links values (14, 'd', 1, 4, 1)",
     "insert into Links values (14, 'd', 4, 1, 1)"},
    {"node-without-links", in2010, "delete from Links where NumLnk = 13", ""},
    {"network-in-parts", in2010, "delete from Links where NumLnk = 12", "delete from Links where NumLnk = 13"},
};

} // namespace

TEST(RulesTest, FindNothingInASoundProject) {
  for (const Dialect dialect : allDialects) {
    MemoryProject project(dialect, soundProject(dialect));
    const CheckResult result = project.check();
    EXPECT_THAT(result.faults, IsEmpty()) << textOf(result, "sound", true);
  }
}

TEST(RulesTest, FindWhatTheyAreForAndNothingBesideIt) {
  for (const Case& rule : cases) {
    const auto codesAfter = [&rule](const char* change) {
      MemoryProject project(rule.dialect, soundProject(rule.dialect) + change);
      const CheckResult result = project.check();
      expectFitsImport(project, result, change);
      return codesOf(result);
    };
    EXPECT_THAT(codesAfter(rule.shows), Contains(rule.code)) << rule.shows;
    EXPECT_THAT(codesAfter(rule.beside), Not(Contains(rule.code))) << rule.beside;
  }
}

TEST(RulesTest, AllHaveACase) {
  std::set<std::string> shown{"lock-file"}; // found beside the database
  for (const Case& rule : cases)
    shown.insert(rule.code);
  for (std::size_t code = 0; code < numOfCodes; ++code)
    EXPECT_EQ(shown.count(ruleOf(static_cast<Code>(code)).slug), 1U) << ruleOf(static_cast<Code>(code)).slug;
}
