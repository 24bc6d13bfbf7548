#include "check/MemoryProject.h"

#include "access/LagomareProjectManager.h"
#include "loader/ImportStatus.h"
#include "loader/LagomareProjectLoader.h"
#include "model/Scenario.h"
#include "tools/check/result/CheckText.h"
#include "tools/check/result/Rule.h"
#include "tools/project/Fault.h"
#include "tools/project/QueryRefused.h"
#include "tools/query/Query.h"
#include "tools/query/QueryError.h"
#include "tools/query/answer/AnswerSink.h"

#include <exception>
#include <gtest/gtest.h>
#include <optional>
#include <stdexcept>
#include <string_view>

#include <sstream>

using namespace LagomareTools;

namespace {

class TextSink : public LagomareQuery::AnswerSink {
public:
  explicit TextSink(std::string& text) : text_(text) {}
  void write(std::string_view bytes) override { text_ += bytes; }

private:
  std::string& text_;
};

/// Hands its channel the source without owning it.
std::shared_ptr<Lagomare::QuerySource> borrowed(Lagomare::QuerySource& source) {
  return {std::shared_ptr<void>(), &source};
}

const char* const common = R"(
create temp table month as with recursive months(m) as (select 1 union all select m + 1 from months limit 12)
  select m from months;
create temp table state as select 1 s union all select 2;
)";

const char* const sound2010 = R"(
create table DefGerais (TipoSimul INTEGER, OptCalc INTEGER, NumEstHidr INTEGER, Duracao INTEGER, AnoIni INTEGER,
  MesIni INTEGER);
create table FrontEH (EstHidr INTEGER, Valor REAL);
create table Pontos (NumNo INTEGER, Nome TEXT, Tipo INTEGER, X REAL, Y REAL);
create table Vazao (Pto INTEGER, Ano INTEGER, Mes INTEGER, U REAL);
create table Links (NumLnk INTEGER, Nome TEXT, NoIni INTEGER, NoFim INTEGER, Tipo INTEGER);
create table LinksDados (Lnk INTEGER, Cmin REAL, Custo REAL, Coef REAL);
create table LinksCmaxEH (Lnk INTEGER, EstHidr INTEGER, Cmax REAL);
create table DemEH (Dem INTEGER, EstHidr INTEGER, Mes INTEGER, Demd REAL);
create table DemPriorEH (Dem INTEGER, EstHidr INTEGER, Demr REAL);
create table Res (Res INTEGER, VolMax REAL, VolMin REAL, VolIni REAL);
create table ResSubsist (Res INTEGER, Subsist INTEGER);
create table ResAVN (Res INTEGER, Area REAL, Volume REAL, Nivel REAL);
create table ResEvap (Res INTEGER, Mes INTEGER, Evap REAL);
create table ResVmetaEH (Res INTEGER, EstHidr INTEGER, Mes INTEGER, Oprr REAL);
create table ResPriorEH (Res INTEGER, EstHidr INTEGER, Oprp REAL);
insert into DefGerais values (0, 0, 2, 1, 2000, 1);
insert into FrontEH values (1, 0.5);
insert into Pontos values (1, 'Norte', 2, 500000, 8000000), (2, 'Sul', 2, 501000, 8000000),
  (3, 'Cidade', 3, 502000, 8000000), (4, 'Foz', 1, 503000, 8000000);
insert into Vazao select NumNo, 2000, m, 3 from Pontos, month where NumNo <> 3;
insert into Links values (11, 'a', 1, 4, 1), (12, 'b', 4, 2, 1), (13, 'c', 2, 3, 1);
insert into LinksDados select NumLnk, 0, 0, 0.25 from Links;
insert into LinksCmaxEH select NumLnk, 1, 90 from Links;
insert into DemEH select 3, s, m, 5 from state, month;
insert into DemPriorEH select 3, s, 2 from state;
insert into Res select NumNo, 90, 10, 50 from Pontos where Tipo = 2;
insert into ResSubsist select Res, 1 from Res;
insert into ResAVN select Res, 2 + m, 10 * m, 400 + m from Res, month where m < 10;
insert into ResEvap select Res, m, 0.02 from Res, month;
insert into ResVmetaEH select Res, s, m, 0.75 from Res, state, month;
insert into ResPriorEH select Res, s, 3 from Res, state;
)";

const char* const sound2013 = R"(
create table Tk_Gerais (DataHoraIni DATETIME, Duracao INTEGER, OptCalc INTEGER, TipoSimul INTEGER);
create table LgmFrontEH (EstHidr INTEGER, Valor REAL);
create table Tk_Pas_FEA (NumPonto INTEGER, Nome TEXT, Coord_X REAL, Coord_Y REAL);
create table LgmVazNat (NumPto INTEGER, Data DATETIME, Valor REAL);
create table Tk_Lnk_FEA (UID INTEGER, Nome TEXT, NoIni INTEGER, NoFim INTEGER, Coef REAL, Cmin REAL);
create table LgmLnkCmaxSC (NumLnk INTEGER, EstHidr INTEGER, Valor REAL);
create table Tk_Dem_FEA (NumPonto INTEGER, Nome TEXT, Coord_X REAL, Coord_Y REAL);
create table LgmDemDemSC (NumPto INTEGER, EstHidr INTEGER, Data DATETIME, Valor REAL);
create table LgmDemPrior (NumPto INTEGER, EstHidr INTEGER, Valor REAL);
create table Tk_Res_FEA (NumPonto INTEGER, Nome TEXT, Coord_X REAL, Coord_Y REAL, VolMax REAL, VolMin REAL,
  VolIni REAL, Subsist INTEGER);
create table LgmResCAV (NumPto INTEGER, Cota REAL, Area REAL, Volume REAL);
create table LgmResEvap (NumPto INTEGER, Mes INTEGER, Valor REAL);
create table LgmResVmetaSC (NumPto INTEGER, EstHidr INTEGER, Data DATETIME, Valor REAL);
create table LgmResPrior (NumPto INTEGER, EstHidr INTEGER, Valor REAL);
create temp table day as select m, format('2000-%02d-01 00:00:00', m) d from month;
insert into Tk_Gerais values ('2000-01-15 13:45:00', 1, 1, 0);
insert into LgmFrontEH values (1, 0.5);
insert into Tk_Res_FEA values (1, 'Norte', 500000, 8000000, 90, 10, 50, 1), (2, 'Sul', 501000, 8000000, 90, 10, 50, 1);
insert into Tk_Dem_FEA values (3, 'Cidade', 502000, 8000000);
insert into Tk_Pas_FEA values (4, 'Foz', 503000, 8000000);
insert into LgmVazNat select id, d, 3 from (select 1 id union all select 2 union all select 4), day;
insert into Tk_Lnk_FEA values (11, 'a', 1, 4, 0.25, 0), (12, 'b', 4, 2, 0.25, 0), (13, 'c', 2, 3, 0.25, 0);
insert into LgmLnkCmaxSC select UID, 1, 90 from Tk_Lnk_FEA;
insert into LgmDemDemSC select 3, s, d, 5 from state, day;
insert into LgmDemPrior select 3, s, 2 from state;
insert into LgmResCAV select NumPonto, 400 + m, 2 + m, 10 * m from Tk_Res_FEA, month where m < 10;
insert into LgmResEvap select NumPonto, m, 20 from Tk_Res_FEA, month;
insert into LgmResVmetaSC select NumPonto, s, d, 0.75 from Tk_Res_FEA, state, day;
insert into LgmResPrior select NumPonto, s, 3 from Tk_Res_FEA, state;
)";

} // namespace

MemoryProject::MemoryProject(Dialect dialect, const std::string& sql)
    : dialect_(dialect), database_{
                             nullptr,
                             LagomareQuery::openConnection(":memory:", SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE),
                             {},
                             std::nullopt} {
  const std::string script = common + sql;
  char* error = nullptr;
  if (sqlite3_exec(database_.connection.get(), script.c_str(), nullptr, nullptr, &error) != SQLITE_OK)
    throw std::runtime_error(std::string("the test's SQL: ") + error);
  LagomareQuery::prepareForQueries(database_.connection.get());
}

std::unique_ptr<std::istream> MemoryProject::ask(const std::string& sql, bool /*flag*/) {
  if (!refused_.empty() && sql.find(refused_) != std::string::npos)
    throw QueryRefused("it will not");
  std::string answer;
  TextSink sink(answer);
  try {
    LagomareQuery::writeRows(database_, sql, sink);
  } catch (const LagomareQuery::QueryError& error) {
    throw QueryRefused(error.what());
  }
  return std::make_unique<std::istringstream>(answer);
}

SceneryProjectManagerRet MemoryProject::import() {
  LagomareProjectManager::cleanInstance();
  LagomareProjectManager::getInstance("memory")->setSource(borrowed(*this));
  return dialect_ == Dialect::of2010 ? LagomareProjectLoader::load2010("", "", {})
                                     : LagomareProjectLoader::load2013("", "", {});
}

std::string soundProject(Dialect dialect) { return dialect == Dialect::of2010 ? sound2010 : sound2013; }

std::vector<std::string> codesOf(const CheckResult& result) {
  std::vector<std::string> codes;
  for (const Fault& fault : result.faults)
    if (codes.empty() || codes.back() != fault.code)
      codes.push_back(fault.code);
  return codes;
}

namespace {

/// "" where the import succeeds and has a month.
std::string failureOf(MemoryProject& project) {
  try {
    const auto result = project.import();
    const bool isEmpty = result.scenario && result.scenario->getInterval().isEmpty();
    return result.status != importSucceeded.code ? result.message : isEmpty ? "no month" : "";
  } catch (const std::exception& error) {
    return error.what();
  }
}

} // namespace

void expectFitsImport(MemoryProject& project, const CheckResult& result, const std::string& what) {
  const std::string failure = failureOf(project);
  EXPECT_EQ(result.count(Severity::error) == 0, failure.empty()) << what << '\n'
                                                                 << failure << '\n'
                                                                 << textOf(result, "the check", true);
  if (!failure.empty())
    return;
  for (const TableCount& table : result.tables) {
    std::size_t told = 0;
    for (const Fault& fault : result.faults)
      told += fault.table == table.table && ruleOf(fault).rows == Rows::notTaken ? fault.rows : 0;
    EXPECT_EQ(told, table.rows - table.taken) << what << '\n' << textOf(result, "the check", true);
  }
}
