#include "Dialect.h"

const char* const commonTables = R"(
create temp table settings (start, years default 1, states default 0, tactical default 0);
insert into settings (start) values ('2000-01-01');
create temp table boundary (id, value);
create temp table reservoir (id, name default 'R', x default 500000, y default 8000000, maximum default 0,
                        minimum default 0, initial default 0, system default 0);
create temp table demand (id, name default 'D', x default 500000, y default 8000000);
create temp table junction (id, name default 'J', x default 500000, y default 8000000);
create temp table link (id, name default 'L', up, down, loss default 0);
create temp table flow (id, value);
create temp table linkLimit (id, state default 1, value);
create temp table demandValue (id, state default 1, value);
create temp table demandPriority (id, state default 1, value);
create temp table target (id, state default 1, value);
create temp table reservoirPriority (id, state default 1, value);
create temp table curve (id, level, area, volume);
create temp table evaporation (id, value);
create temp table month as with recursive months(month) as (select 1 union all select month + 1 from months limit 12)
  select month from months;
)";

const Dialect dialect2010{"2010", LagomareProjectLoader::load2010, R"(
create table DefGerais as select tactical TipoSimul, not states OptCalc, 'unread' NumEstHidr, years Duracao,
  substr(start, 1, 4) + 0 AnoIni, substr(start, 6, 2) + 0 MesIni from settings;
create table FrontEH as select id EstHidr, value Valor from boundary;
create table Pontos as select id NumNo, name Nome, 2 Tipo, x X, y Y from reservoir
  union all select id, name, 3, x, y from demand union all select id, name, 1, x, y from junction;
create table Vazao as select id Pto, value U from flow;
create table Links as select id NumLnk, name Nome, up NoIni, down NoFim, 'unread' Tipo from link;
create table LinksDados as select id Lnk, 'unread' Cmin, 'unread' Custo, loss Coef from link;
create table LinksCmaxEH as select id Lnk, state EstHidr, value Cmax from linkLimit;
create table DemEH as select id Dem, state EstHidr, value Demd from demandValue;
create table DemPriorEH as select id Dem, state EstHidr, value Demr from demandPriority;
create table Res as select id Res, maximum VolMax, minimum VolMin, initial VolIni from reservoir;
create table ResSubsist as select id Res, system Subsist from reservoir;
create table ResAVN as select id Res, area Area, volume Volume, level Nivel from curve;
create table ResEvap as select id Res, value / 1000.0 Evap from evaporation;
create table ResVmetaEH as select id Res, state EstHidr, value Oprr from target;
create table ResPriorEH as select id Res, state EstHidr, value Oprp from reservoirPriority;
)"};

const Dialect dialect2013{"2013", LagomareProjectLoader::load2013, R"(
create table Tk_Gerais as select start DataHoraIni, years Duracao, states OptCalc, tactical TipoSimul from settings;
create table LgmFrontEH as select id EstHidr, value Valor from boundary;
create table Tk_Pas_FEA as select id NumPonto, name Nome, x Coord_X, y Coord_Y from junction;
create table LgmVazNat as select id NumPto, value Valor from flow;
create table Tk_Lnk_FEA as select id UID, name Nome, up NoIni, down NoFim, loss Coef, 'unread' Cmin from link;
create table LgmLnkCmaxSC as select id NumLnk, state EstHidr, value Valor from linkLimit;
create table Tk_Dem_FEA as select id NumPonto, name Nome, x Coord_X, y Coord_Y from demand;
create table LgmDemDemSC as select id NumPto, state EstHidr, value Valor from demandValue;
create table LgmDemPrior as select id NumPto, state EstHidr, value Valor from demandPriority;
create table Tk_Res_FEA as select id NumPonto, name Nome, x Coord_X, y Coord_Y, maximum VolMax, minimum VolMin,
  initial VolIni, system Subsist from reservoir;
create table LgmResCAV as select id NumPto, level Cota, area Area, volume Volume from curve;
create table LgmResEvap as select id NumPto, value Valor from evaporation;
create table LgmResVmetaSC as select id NumPto, state EstHidr, value Valor from target;
create table LgmResPrior as select id NumPto, state EstHidr, value Valor from reservoirPriority;
)"};
