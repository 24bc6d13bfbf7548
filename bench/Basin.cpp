#include "bench/Basin.h"

#include "bench/Sqlite.h"

namespace LagomareBench {

namespace {

constexpr const char* tables = R"(
create table Tk_Gerais     (DataHoraIni DATETIME, Duracao INTEGER, OptCalc INTEGER, TipoSimul INTEGER);
create table LgmFrontEH    (EstHidr INTEGER, Valor REAL);
create table Tk_Pas_FEA    (NumPonto INTEGER, Nome TEXT, Coord_X REAL, Coord_Y REAL);
create table LgmVazNat     (NumPto INTEGER, Data DATETIME, Valor REAL);
create table Tk_Lnk_FEA    (UID INTEGER, Nome TEXT, NoIni INTEGER, NoFim INTEGER, Coef REAL, Cmin REAL);
create table LgmLnkCmaxSC  (NumLnk INTEGER, EstHidr INTEGER, Valor REAL);
create table Tk_Dem_FEA    (NumPonto INTEGER, Nome TEXT, Coord_X REAL, Coord_Y REAL);
create table LgmDemDemSC   (NumPto INTEGER, EstHidr INTEGER, Data DATETIME, Valor REAL);
create table LgmDemPrior   (NumPto INTEGER, EstHidr INTEGER, Valor REAL);
create table Tk_Res_FEA    (NumPonto INTEGER, Nome TEXT, Coord_X REAL, Coord_Y REAL, VolMax REAL, VolMin REAL,
                            VolIni REAL, Subsist INTEGER);
create table LgmResCAV     (NumPto INTEGER, Cota REAL, Area REAL, Volume REAL);
create table LgmResEvap    (NumPto INTEGER, Mes INTEGER, Valor REAL);
create table LgmResVmetaSC (NumPto INTEGER, EstHidr INTEGER, Data DATETIME, Valor REAL);
create table LgmResPrior   (NumPto INTEGER, EstHidr INTEGER, Valor REAL);
)";

// 1 to 5 in turn: reservoir, demand, junction, demand, junction. Values have four decimals.
constexpr const char* helpers = R"(
create temp table node as
  with recursive n(id) as (select 1 union all select id + 1 from n where id < $nodes)
  select id, id % 5 as kind, 'Nó' || char(160) || 'do' || char(160) || 'rio' || char(160) || id as name,
         500000.0 + id * 7919 % 99991 as x, 8000000.0 + id * 104729 % 99989 as y from n;
create temp table month as
  with recursive n(step) as (select 0 union all select step + 1 from n where step + 1 < $years * 12)
  select step, date('1901-01-01', step || ' months') || ' 00:00:00' as day from n;
create temp table state as
  with recursive n(id) as (select 1 union all select id + 1 from n where id < $states) select id from n;
)";

constexpr const char* rows = R"(
insert into Tk_Gerais values ('1901-01-01 00:00:00', $years, 1, 0);
insert into LgmFrontEH select id, id * 0.1 from state where id < $states;
insert into Tk_Res_FEA select id, name, x, y, 900.5, 100.25, 500.125, 1 from node where kind = 1;
insert into Tk_Dem_FEA select id, name, x, y from node where kind in (2, 4);
insert into Tk_Pas_FEA select id, name, x, y from node where kind in (3, 0);
insert into Tk_Lnk_FEA select id, 'Trecho' || char(160) || id, id, id + 1, 0.015, 0 from node where id < $nodes;
insert into LgmLnkCmaxSC select node.id, state.id, 1000.5 from node, state where node.id < $nodes;
insert into LgmVazNat select id, day, (id * 7919 + step * 104729) % 9999991 / 10000.0 from node cross join month;
insert into LgmDemDemSC
  select node.id, state.id, day, (node.id * 7907 + step * 104723 + state.id) % 9999991 / 10000.0
  from node cross join state cross join month where kind in (2, 4);
insert into LgmDemPrior select node.id, state.id, node.id % 9 + state.id from node, state where kind in (2, 4);
insert into LgmResVmetaSC
  select node.id, state.id, day, (node.id * 7901 + step * 104717 + state.id) % 9973 / 10000.0
  from node cross join state cross join month where kind = 1;
insert into LgmResPrior select node.id, state.id, node.id % 9 + state.id from node, state where kind = 1;
insert into LgmResCAV select id, 100.0 + step, 10.5 * step, 123.25 * step from node, month where kind = 1 and step < 10;
insert into LgmResEvap select id, step + 1, step * 13.5 - 50 from node, month where kind = 1 and step < 12;
)";

void replaceAll(std::string& text, const std::string& mark, unsigned value) {
  for (auto found = text.find(mark); found != std::string::npos; found = text.find(mark, found))
    text.replace(found, mark.size(), std::to_string(value));
}

} // namespace

void writeBasin(const std::string& file, const BasinSize& size) {
  std::string sql = std::string(tables) + "begin;" + helpers + rows + "commit;";
  replaceAll(sql, "$nodes", size.nodes);
  replaceAll(sql, "$years", size.years);
  replaceAll(sql, "$states", size.states);
  execute(create(file), sql);
}

} // namespace LagomareBench
