#include "support/CommandTest.h"

#include <cstdlib>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr const char* tables2013 = R"(
create table Tk_Gerais (DataHoraIni, Duracao, OptCalc, TipoSimul); insert into Tk_Gerais values ('2000-01-15', 1, 1, 0);
create table LgmFrontEH (EstHidr, Valor); insert into LgmFrontEH values (1, 0.5);
create table Tk_Res_FEA (NumPonto, Nome, Coord_X, Coord_Y, VolMax, VolMin, VolIni, Subsist);
insert into Tk_Res_FEA values (1, 'Açude Velho', 500000, 8000000, 100.5, 10, 50, 1),
                              (2, 'Um, "dois"', 510000, 8010000, 200, 20, 60, 0);
create table LgmResCAV (NumPto, Cota, Area, Volume); insert into LgmResCAV values (1, 400, 0.1, 10), (1, 410, 3, 100.5);
create table LgmResEvap (NumPto, Mes, Valor);
create table LgmResVmetaSC (NumPto, EstHidr, Data, Valor); insert into LgmResVmetaSC values (1, 2, null, 0.25);
create table LgmResPrior (NumPto, EstHidr, Valor); insert into LgmResPrior values (1, 1, 7), (1, 2, 8);
create table Tk_Dem_FEA (NumPonto, Nome, Coord_X, Coord_Y);
insert into Tk_Dem_FEA values (11, 'Cidade', 520000, 8000000), (12, 'Foz', 530000, 8000000);
create table LgmDemDemSC (NumPto, EstHidr, Data, Valor);
create table LgmDemPrior (NumPto, EstHidr, Valor); insert into LgmDemPrior values (11, 1, 3), (12, 1, 99);
create table Tk_Pas_FEA (NumPonto, Nome, Coord_X, Coord_Y); insert into Tk_Pas_FEA values (21, '', 515000, 8005000);
create table LgmVazNat (NumPto, Data, Valor);
create temp table month as with recursive m(n) as (select 1 union all select n + 1 from m limit 12) select n from m;
insert into LgmVazNat select 21, n, n / 10.0 from month;
insert into LgmDemDemSC select 11, 1, n, 2 from month; insert into LgmDemDemSC select 12, 1, n, 1000 from month;
create table Tk_Lnk_FEA (UID, Nome, NoIni, NoFim, Coef, Cmin);
insert into Tk_Lnk_FEA values (1, 'Canal', 1, 2, 0, 0), (2, 'Volta', 2, 1, 0, 0), (3, 'C', 2, 21, 0.35, 0),
                              (4, 'D', 21, 11, 0, 0), (5, 'E', 21, 12, 0, 0);
create table LgmLnkCmaxSC (NumLnk, EstHidr, Valor); insert into LgmLnkCmaxSC values (3, 1, 12.5);
)";

constexpr const char* tables2010 = R"(
create table DefGerais (TipoSimul, OptCalc, NumEstHidr, Duracao, AnoIni, MesIni);
insert into DefGerais values (0, 1, 0, 1, 2000, 1);
create table Pontos (NumNo, Nome, Tipo, X, Y); create table Vazao (Pto, Ano, Mes, U);
create table Links (NumLnk, Nome, NoIni, NoFim, Tipo); create table LinksDados (Lnk, Cmin, Custo, Coef);
create table LinksCmaxEH (Lnk, EstHidr, Cmax); create table DemEH (Dem, EstHidr, Mes, Demd);
create table DemPriorEH (Dem, EstHidr, Demr); create table Res (Res, VolMax, VolMin, VolIni);
create table ResSubsist (Res, Subsist); create table ResAVN (Res, Area, Volume, Nivel);
create table ResEvap (Res, Mes, Evap); create table ResVmetaEH (Res, EstHidr, Mes, Oprr);
create table ResPriorEH (Res, EstHidr, Oprp);
)";

} // namespace

CommandTest::CommandTest() {
  std::string name = (fs::temp_directory_path() / "lagomare $(touch oops) 'q\"\n`id`-XXXXXX").string();
  directory_ = ::mkdtemp(name.data());
  fs::current_path(directory_);
  fs::create_directory("tmp");
  ::setenv("TMPDIR", fs::absolute("tmp").c_str(), 1);
}

CommandTest::~CommandTest() {
  EXPECT_EQ(leftovers(), std::vector<std::string>());
  ::unsetenv("TMPDIR");
  fs::current_path(outside_);
  fs::remove_all(directory_);
}

std::string CommandTest::project(const std::string& sql, const std::string& name) {
  fs::remove(name);
  runSql(name, tables2013 + sql);
  return name;
}

std::string CommandTest::project2010(const std::string& name) {
  runSql(name, tables2010);
  return name;
}

std::vector<std::string> CommandTest::importing(std::vector<std::string> words) {
  words.insert(words.begin(), {LAGOMARE, "import"});
  return words;
}

std::string CommandTest::executable(const std::string& script, const std::string& name) {
  writeFile(name, "#!/bin/sh\nanswer() { '" LAGOMARE_QUERY "' \"$@\"; }\n" + script + "\n");
  fs::permissions(name, fs::perms::owner_all);
  return name;
}

std::vector<std::string> CommandTest::leftovers() {
  std::vector<std::string> files;
  for (const auto& entry : fs::directory_iterator("tmp"))
    files.push_back(entry.path().string());
  for (const auto& entry : fs::recursive_directory_iterator("."))
    if (entry.path().filename().string().compare(0, 10, ".lagomare-") == 0 || entry.path().filename() == "oops")
      files.push_back(entry.path().string());
  return files;
}
