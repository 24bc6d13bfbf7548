#include "ImportFixture.h"

#include <filesystem>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

using namespace testing;

namespace {

// Every query of an import, in order, as SQL|flag; "states " marks those that only a project with hydrological states
// is asked, N the states in turn, " --" the end of each step, where progress is reported.

const char* const sequence2010 = R"(select * from DefGerais|0
states select * from FrontEH|0
select NumNo from Pontos where Tipo = 2|1
select NumNo from Pontos where Tipo = 3|1
select NumNo from Pontos where Tipo = 1|1
select NumLnk from Links|1
select * from Pontos where Tipo = 2|0
select Pto, U from Vazao|1 --
select * from Res|0 --
select * from ResSubsist|0 --
select * from ResAVN|1 --
select Res, Evap from ResEvap|0 --
select Res, Oprr from ResVmetaEH where EstHidr = 1|1 --
select Res, Oprp from ResPriorEH where EstHidr = 1|0 --
states select Res, Oprp from ResPriorEH|0 --
states select Res, Oprr from ResVmetaEH where EstHidr = N|0 --
select Dem, Demd from DemEH where EstHidr = 1|1 --
select * from Pontos where Tipo = 3|0
select Pto, U from Vazao|1 --
select Dem, Demr from DemPriorEH where EstHidr = 1|0 --
states select Dem, Demr from DemPriorEH|0 --
states select Dem, Demd from DemEH where EstHidr = N|0 --
select * from Pontos where Tipo = 1|0
select Pto, U from Vazao|1 --
select Lnk, Cmax from LinksCmaxEH where EstHidr = 1|0 --
select * from LinksDados|0 --
select * from Links|0 --
)";

const char* const sequence2013 =
    R"(select FORMAT(DataHoraIni, 'dd/mm/yyyy'), Duracao, OptCalc, TipoSimul from Tk_Gerais|0
states select * from LgmFrontEH|0
select NumPonto from Tk_Res_FEA|1
select NumPonto from Tk_Dem_FEA|1
select NumPonto from Tk_Pas_FEA|1
select UID from Tk_Lnk_FEA|1
select NumPonto, Nome, Coord_X, Coord_Y, VolMax, VolMin, VolIni, Subsist from Tk_Res_FEA|0
select NumPto, Valor from LgmVazNat |1 --
select * from LgmResCAV|1 --
select NumPto, Valor from LgmResEvap|0 --
select NumPto, Valor from LgmResVmetaSC where EstHidr = 1|1 --
select NumPto, Valor from LgmResPrior where EstHidr = 1|0 --
states select NumPto, Valor from LgmResPrior|0 --
states select NumPto, Valor from LgmResVmetaSC where EstHidr = N|0 --
select NumPto, Valor from LgmDemDemSC where EstHidr = 1|1 --
select NumPonto, Nome, Coord_X, Coord_Y from Tk_Dem_FEA|0
select NumPto, Valor from LgmVazNat |1 --
select NumPto, Valor from LgmDemPrior where EstHidr = 1|0 --
states select NumPto, Valor from LgmDemPrior|0 --
states select NumPto, Valor from LgmDemDemSC where EstHidr = N|0 --
select NumPonto, Nome, Coord_X, Coord_Y from Tk_Pas_FEA|0
select NumPto, Valor from LgmVazNat |1 --
select NumLnk, Valor from LgmLnkCmaxSC where EstHidr = 1|0 --
select UID, Nome, NoIni, NoFim, Coef, Cmin from Tk_Lnk_FEA|0 --
)";

const std::string network = R"(
insert into reservoir (id) values (1);
insert into demand (id) values (3);
insert into junction (id) values (4);
insert into link (id, up, down) values (5, 1, 3);
insert into linkLimit (id, value) values (5, 9.5);
)";
const std::string threeStates = "update settings set states = 1; insert into boundary values (1, 0.3), (2, 0.6);";

constexpr int whole = 1000;

/// The queries up to the end of a step, from 1.
std::vector<std::string> queriesOf(const Dialect& dialect, bool withStates, int lastStep) {
  std::vector<std::string> queries;
  std::istringstream lines(&dialect == &dialect2010 ? sequence2010 : sequence2013);
  for (std::string line; lastStep > 0 && std::getline(lines, line);) {
    const std::string query = line.substr(0, line.find(" --"));
    const auto state = query.find("= N|");
    if (query.rfind("states ", 0) != 0)
      queries.push_back(query);
    else if (withStates && state == std::string::npos)
      queries.push_back(query.substr(7));
    else if (withStates)
      for (const char* number : {"= 1|0", "= 2|0", "= 3|0"})
        queries.push_back(query.substr(7, state - 7) + number);
    lastStep -= query == line ? 0 : 1;
  }
  return queries;
}

class ImportSequenceTest : public DialectTest {};

class CancellationTest : public ImportTest, public WithParamInterface<std::tuple<const Dialect*, int>> {};

} // namespace

INSTANTIATE_TEST_SUITE_P(Dialects, ImportSequenceTest, bothDialects, dialectName);

TEST_P(ImportSequenceTest, AsksWhatAProjectWithThreeStatesNeeds) {
  load(threeStates + network);
  EXPECT_EQ(queries(), queriesOf(*GetParam(), true, whole));
}

TEST_P(ImportSequenceTest, AsksWhatAProjectWithoutStatesNeeds) {
  load("insert into boundary values (1, 0.3);" + network);
  EXPECT_EQ(queries(), queriesOf(*GetParam(), false, whole));
}

INSTANTIATE_TEST_SUITE_P(Steps2010, CancellationTest, Combine(Values(&dialect2010), Range(1, 19)));
INSTANTIATE_TEST_SUITE_P(Steps2013, CancellationTest, Combine(Values(&dialect2013), Range(1, 16)));

TEST_P(CancellationTest, StopsAfterTheStep) {
  const auto [dialect, step] = GetParam();
  const auto result =
      import(*dialect, threeStates + network, [lastStep = step](long done, long) { return done < lastStep; });
  EXPECT_EQ(result.status, 0U);
  EXPECT_EQ(result.message, "Importação cancelada");
  EXPECT_EQ(result.scenario, nullptr);
  EXPECT_EQ(queries(), queriesOf(*dialect, true, step));
  EXPECT_FALSE(std::filesystem::exists("script.bat"));
  EXPECT_FALSE(std::filesystem::exists("query-result.txt"));
}
