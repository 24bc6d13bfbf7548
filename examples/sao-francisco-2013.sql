-- The São Francisco river, Brazil, as a project of the 2013 dialect.
--
--   sqlite3 new.db < sao-francisco-2013.sql        (into a new database: running it twice would double the rows)
--
-- Illustrative only. The figures are approximate public ones, rounded; wet and dry years are drawn after the river's
-- history, not measured, and the series serve no decision about the real river.
--
-- Units: flows, demands and limits m³/s; volumes hm³; levels m; areas km²; losses a fraction; target volumes a fraction
-- of the maximum volume; net evaporation mm a month, negative where rain exceeds it; positions UTM zone 23 south,
-- SIRGAS 2000, metres, the zone carried on eastwards to the sea. Period: 1999 to 2010, monthly.
--
-- Temporary tables and views describe the river once, in the same words as in sao-francisco-2010.sql; only then are
-- the tables of the dialect filled from them. What the dialects cannot say alike: demands and target volumes have one
-- row per month here, twelve rows in 2010; net evaporation is in metres in 2010; a non-zero OptCalc asks for
-- hydrological states here, a zero does so in 2010. Both hold the same patterns of twelve months, so that the two
-- imports give the same scenario.

begin;

create table Tk_Gerais     (DataHoraIni DATETIME, Duracao INTEGER, OptCalc INTEGER, TipoSimul INTEGER);
create table LgmFrontEH    (EstHidr INTEGER, Valor REAL);
create table Tk_Pas_FEA    (NumPonto INTEGER, Nome TEXT, Coord_X REAL, Coord_Y REAL);
create table LgmVazNat     (NumPto INTEGER, Data DATETIME, Valor REAL);
create table Tk_Lnk_FEA    (UID INTEGER, Nome TEXT, NoIni INTEGER, NoFim INTEGER, Coef REAL, Cmin REAL);
create table LgmLnkCmaxSC  (NumLnk INTEGER, EstHidr INTEGER, Valor REAL);
create table Tk_Dem_FEA    (NumPonto INTEGER, Nome TEXT, Coord_X REAL, Coord_Y REAL);
create table LgmDemDemSC   (NumPto INTEGER, EstHidr INTEGER, Data DATETIME, Valor REAL);
create table LgmDemPrior   (NumPto INTEGER, EstHidr INTEGER, Valor REAL);
create table Tk_Res_FEA    (NumPonto INTEGER, Nome TEXT, Coord_X REAL, Coord_Y REAL, VolMax REAL, VolMin REAL, VolIni REAL, Subsist INTEGER);
create table LgmResCAV     (NumPto INTEGER, Cota REAL, Area REAL, Volume REAL);
create table LgmResEvap    (NumPto INTEGER, Mes INTEGER, Valor REAL);
create table LgmResVmetaSC (NumPto INTEGER, EstHidr INTEGER, Data DATETIME, Valor REAL);
create table LgmResPrior   (NumPto INTEGER, EstHidr INTEGER, Valor REAL);

-- The river.

create temp table river_node (id integer, kind text, name text, x real, y real, mean_flow real);
insert into river_node values  -- mean_flow: natural flow that joins here; the lesser ones downstream are left out
  ( 1, 'reservoir', 'Três Marias',                472297, 7986229, 690),   -- 18.213 S 45.262 W
  ( 2, 'reservoir', 'Sobradinho',                 958390, 8954648, null),  --  9.432 S 40.828 W
  ( 3, 'reservoir', 'Itaparica',                 1236301, 8982376, null),  --  9.144 S 38.313 W
  ( 4, 'reservoir', 'Moxotó',                    1247467, 8958784, null),  --  9.354 S 38.208 W
  ( 5, 'reservoir', 'Xingó',                     1292742, 8928125, null),  --  9.621 S 37.793 W
  (11, 'demand',    'Irrigação do Jaíba',         623554, 8324759, null),  -- 15.15  S 43.85  W
  (12, 'demand',    'Irrigação Nilo Coelho',      983670, 8968975, null),  --  9.30  S 40.60  W
  (13, 'demand',    'Petrolina–Juazeiro',         994542, 8957748, null),  --  9.40  S 40.50  W
  (14, 'demand',    'Transposição, Eixo Norte',  1110701, 9059383, null),  --  8.47  S 39.46  W
  (15, 'demand',    'Transposição, Eixo Leste',  1227489, 9027504, null),  --  8.74  S 38.40  W
  (16, 'demand',    'Foz do São Francisco',      1444383, 8826316, null),  -- 10.50  S 36.40  W
  (21, 'junction',  'Foz do rio das Velhas',      519139, 8098311, 300),   -- 17.20  S 44.82  W
  (22, 'junction',  'Foz do rio Paracatu',        489333, 8165798, 420),   -- 16.59  S 45.10  W
  (23, 'junction',  'Foz do rio Urucuia',         494654, 8215578, 260),   -- 16.14  S 45.05  W
  (24, 'junction',  'Captação do Jaíba',          601019, 8331504, null),  -- 15.09  S 44.06  W
  (25, 'junction',  'Foz do rio Corrente',        664782, 8551310, 230),   -- 13.10  S 43.48  W
  (26, 'junction',  'Foz do rio Grande',          703165, 8773435, 260),   -- 11.09  S 43.14  W
  (27, 'junction',  'Ponte Petrolina–Juazeiro',   993427, 8956653, null),  --  9.41  S 40.51  W
  (28, 'junction',  'Captação em Cabrobó',       1113890, 9050451, null);  --  8.55  S 39.43  W

-- Limits of the river are floods that its banks bear, those of canals and mains their capacity, the same in every
-- hydrological state. The way back from Moxotó to Itaparica is there to show a connection in both directions.
create temp table river_link (id integer, name text, upstream integer, downstream integer,
                              loss real, min_flow real, max_flow real);
insert into river_link values
  (101, 'Três Marias a Barra do Guaicuí',       1, 21, 0.01,   350,  8000),
  (102, 'Barra do Guaicuí ao Paracatu',        21, 22, 0.01,     0,  9000),
  (103, 'Paracatu ao Urucuia',                 22, 23, 0.005,    0, 10000),
  (104, 'Urucuia ao Jaíba',                    23, 24, 0.01,     0, 10000),
  (105, 'Canal do Jaíba',                      24, 11, 0.08,     0,    80),
  (106, 'Jaíba ao Corrente',                   24, 25, 0.015,    0, 12000),
  (107, 'Corrente ao Grande',                  25, 26, 0.015,    0, 12000),
  (108, 'Grande a Sobradinho',                 26,  2, 0.02,     0, 15000),
  (109, 'Adutora Nilo Coelho',                  2, 12, 0.05,     0,    30),
  (110, 'Sobradinho a Petrolina',               2, 27, 0.005, 1300,  8000),
  (111, 'Captação urbana',                     27, 13, 0.02,     0,     4),
  (112, 'Petrolina a Cabrobó',                 27, 28, 0.02,     0,  8000),
  (113, 'Canal do Eixo Norte',                 28, 14, 0.1,      0,    99),
  (114, 'Cabrobó a Itaparica',                 28,  3, 0.01,     0,  9000),
  (115, 'Canal do Eixo Leste',                  3, 15, 0.1,      0,    28),
  (116, 'Itaparica a Moxotó',                   3,  4, 0,        0,  9000),
  (117, 'Moxotó a Itaparica',                   4,  3, 0,        0,   100),
  (118, 'Moxotó a Xingó',                       4,  5, 0.005,    0,  9000),
  (119, 'Xingó à foz',                          5, 16, 0.01,     0,  8000);

-- Patterns of the year. Flow and irrigation are factors of the mean (their mean over the year is 1); storage says how
-- far a reservoir's target stands between its low, before the rains, and its high, after them.
create temp table river_month (month integer, flow real, irrigation real, storage real);
insert into river_month values
  ( 1, 2.20, 0.80, 0.45), ( 2, 2.20, 0.80, 0.70), ( 3, 1.70, 0.80, 0.90), ( 4, 1.05, 0.90, 1.00),
  ( 5, 0.62, 1.00, 1.00), ( 6, 0.50, 1.05, 0.90), ( 7, 0.43, 1.15, 0.75), ( 8, 0.38, 1.30, 0.55),
  ( 9, 0.35, 1.35, 0.35), (10, 0.45, 1.20, 0.15), (11, 0.72, 0.85, 0.00), (12, 1.40, 0.80, 0.20);

-- Wet and dry years as factors of the mean flow, their mean being 1: the drought of 2001, the flood of 2007.
create temp table river_year (year integer, flow real);
insert into river_year values
  (1999, 0.85), (2000, 1.05), (2001, 0.55), (2002, 1.00), (2003, 0.80), (2004, 1.25),
  (2005, 1.15), (2006, 1.20), (2007, 1.40), (2008, 0.85), (2009, 1.10), (2010, 0.80);

-- Hydrological states: 1 dry, 2 normal, 3 wet, parted where the system is filled to 30 % and to 60 %.
create temp table river_boundary (id integer, filled real);
insert into river_boundary values (1, 0.3), (2, 0.6);

-- Mean demand and priority (1 is served first) per hydrological state. A dry state asks for no less: irrigation needs
-- it most then, and is rationed by a later priority instead. In a wet state rain spares some irrigation, and the two
-- axes of the transposition may take water beyond their firm 26.4. The mouth comes last and takes what is left: asking
-- for 1000 or more in every month of state 1, it is read as a drain.
create temp table river_demand (id integer, state integer, pattern text, mean real, priority integer);
insert into river_demand values
  (11, 1, 'irrigation', 35,   5), (11, 2, 'irrigation', 35,   3), (11, 3, 'irrigation', 31.5, 3),
  (12, 1, 'irrigation', 18,   4), (12, 2, 'irrigation', 18,   3), (12, 3, 'irrigation', 16.2, 3),
  (13, 1, 'constant',    2,   1), (13, 2, 'constant',    2,   1), (13, 3, 'constant',    2,   1),
  (14, 1, 'constant',   16.4, 2), (14, 2, 'constant',   16.4, 2), (14, 3, 'constant',   50,   4),
  (15, 1, 'constant',   10,   2), (15, 2, 'constant',   10,   2), (15, 3, 'constant',   20,   4),
  (16, 1, 'constant', 1300,   9), (16, 2, 'constant', 1300,   9), (16, 3, 'constant', 1300,   9);

-- in_system: the volume counts towards the hydrological state; the two run-of-river reservoirs do not.
create temp table river_reservoir (id integer, max_volume real, min_volume real, initial_volume real, in_system integer);
insert into river_reservoir values
  (1, 19528, 4250, 11000, 1), (2, 34116, 5447, 14500, 1), (3, 10782, 7234, 9000, 1),
  (4,  1226, 1000,  1150, 0), (5,  3800, 3790,  3796, 0);

-- Target volumes, lowest and highest of the year, and priority of storing, per hydrological state.
create temp table river_target (id integer, state integer, low real, high real, priority integer);
insert into river_target values
  (1, 1, 0.35, 0.55, 6), (1, 2, 0.45, 0.75, 7), (1, 3, 0.55, 0.95, 8),
  (2, 1, 0.3,  0.5,  6), (2, 2, 0.4,  0.75, 7), (2, 3, 0.5,  0.95, 8),
  (3, 1, 0.75, 0.85, 6), (3, 2, 0.8,  0.9,  7), (3, 3, 0.85, 0.98, 8),
  (4, 1, 0.95, 0.95, 6), (4, 2, 0.95, 0.95, 7), (4, 3, 0.95, 0.95, 8),
  (5, 1, 0.999, 0.999, 6), (5, 2, 0.999, 0.999, 7), (5, 3, 0.999, 0.999, 8);

-- Level, area, volume, from below the minimum to the maximum. In the first three reservoirs the volume gained agrees
-- with area times height; in Moxotó and Xingó the rounded public figures for level, area and volume do not agree with
-- each other, and the curve keeps to them at both ends.
create temp table river_curve (id integer, level real, area real, volume real);
insert into river_curve values
  (1, 535,    134,  1107), (1, 542,    217,  2323), (1, 549.2,  322,  4250),
  (1, 553,    394,  5592), (1, 557,    507,  7387), (1, 561,    639,  9673),
  (1, 565,    785, 12517), (1, 569,    943, 15972), (1, 572.5, 1090, 19528),
  (2, 374,    330,   988), (2, 378,    757,  3091), (2, 380.5, 1144,  5447),
  (2, 382.5, 1366,  7916), (2, 384.5, 1758, 11019), (2, 386.5, 2255, 15016),
  (2, 388.5, 2838, 20097), (2, 390.5, 3494, 26418), (2, 392.5, 4214, 34116),
  (3, 285,    214,  1724), (3, 293,    412,  4171), (3, 299,    619,  7234), (3, 300,    644,  7864),
  (3, 301,    682,  8526), (3, 302,    726,  9230), (3, 303,    775,  9981), (3, 304,    828, 10782),
  (4, 246,    69,    554), (4, 249,    82,    781), (4, 251.5,  93,   1000), (4, 251.6,  94, 1045.2),
  (4, 251.7,  95, 1090.4), (4, 251.8,  96, 1135.6), (4, 251.9,  97, 1180.8), (4, 252,    98,   1226),
  (5, 120,    52,   2834), (5, 130,    56,   3375), (5, 137.2, 59.2, 3790), (5, 137.3, 59.3, 3791.25),
  (5, 137.4, 59.4, 3792.5), (5, 137.6, 59.6, 3795), (5, 137.8, 59.8, 3797.5), (5, 138, 60, 3800);

-- Net evaporation, mm: the reservoirs 1 to 5. December and January bring a surplus of rain at Três Marias.
create temp table river_evaporation (month integer, r1 real, r2 real, r3 real, r4 real, r5 real);
insert into river_evaporation values
  ( 1, -65, 165, 185, 180, 170), ( 2,   5, 140, 155, 150, 145), ( 3,  10, 115, 125, 120, 120),
  ( 4,  60, 135, 115, 110, 105), ( 5,  75, 150, 110, 105, 100), ( 6,  80, 155, 105, 100, 100),
  ( 7,  95, 175, 120, 115, 105), ( 8, 120, 205, 155, 150, 135), ( 9, 125, 230, 190, 185, 165),
  (10,  70, 245, 230, 225, 205), (11,   5, 215, 225, 220, 210), (12, -70, 180, 210, 205, 195);

create temp view river_calendar as
  with recursive calendar (day) as (
    values ('1999-01-01') union all select date(day, '+1 month') from calendar where day < '2010-12-01')
  select day, cast(strftime('%Y', day) as integer) as year, cast(strftime('%m', day) as integer) as month from calendar;

create temp view natural_flow as
  select n.id, c.day, c.year, c.month, round(n.mean_flow * m.flow * y.flow, 1) as value
  from river_node n, river_calendar c join river_month m on m.month = c.month join river_year y on y.year = c.year
  where n.mean_flow is not null;

create temp view demand_pattern as
  select d.id, d.state, m.month, round(d.mean * case d.pattern when 'irrigation' then m.irrigation else 1 end, 2) as value
  from river_demand d, river_month m;

create temp view target_pattern as
  select t.id, t.state, m.month, round(t.low + (t.high - t.low) * m.storage, 3) as value
  from river_target t, river_month m;

create temp view net_evaporation as
  select r.id, e.month, case r.id when 1 then e.r1 when 2 then e.r2 when 3 then e.r3 when 4 then e.r4 else e.r5 end as mm
  from river_reservoir r, river_evaporation e;

create temp view link_limit as
  select l.id, s.state, l.max_flow from river_link l, (select distinct state from river_target) s;

-- The tables of the dialect: rows lie in the order of months and states, and are read in that order.

insert into Tk_Gerais values ('1999-01-01 00:00:00', 12, 1, 0);
insert into LgmFrontEH select id, filled from river_boundary order by id;

insert into Tk_Pas_FEA select id, name, x, y from river_node where kind = 'junction' order by id;
insert into Tk_Dem_FEA select id, name, x, y from river_node where kind = 'demand' order by id;
insert into Tk_Res_FEA
  select id, name, x, y, max_volume, min_volume, initial_volume, in_system
  from river_node join river_reservoir using (id) order by id;
insert into LgmVazNat select id, day || ' 00:00:00', value from natural_flow order by id, day;

insert into Tk_Lnk_FEA select id, name, upstream, downstream, loss, min_flow from river_link order by id;
insert into LgmLnkCmaxSC select id, state, max_flow from link_limit order by id, state;

insert into LgmDemDemSC
  select id, state, day || ' 00:00:00', value
  from demand_pattern join river_calendar using (month) order by id, state, day;
insert into LgmDemPrior select id, state, priority from river_demand order by id, state;

insert into LgmResCAV select id, level, area, volume from river_curve order by id, level;
insert into LgmResEvap select id, month, mm from net_evaporation order by id, month;
insert into LgmResVmetaSC
  select id, state, day || ' 00:00:00', value
  from target_pattern join river_calendar using (month) order by id, state, day;
insert into LgmResPrior select id, state, priority from river_target order by id, state;

-- Only the tables of the dialect stay behind.
drop view temp.link_limit;
drop view temp.net_evaporation;
drop view temp.target_pattern;
drop view temp.demand_pattern;
drop view temp.natural_flow;
drop view temp.river_calendar;
drop table temp.river_evaporation;
drop table temp.river_curve;
drop table temp.river_target;
drop table temp.river_reservoir;
drop table temp.river_demand;
drop table temp.river_boundary;
drop table temp.river_year;
drop table temp.river_month;
drop table temp.river_link;
drop table temp.river_node;

commit;
