#include "bench/AccessStandIn.h"
#include "bench/Benches.h"
#include "bench/Child.h"
#include "bench/Sqlite.h"
#include "bench/Table.h"
#include "tools/query/Database.h"
#include "tools/query/sqlite/Sqlite.h"

#include <cstdint>
#include <cstring>
#include <fstream>
#include <iomanip>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>

namespace LagomareBench {

namespace {

const std::string accessFile = "access.mdb";
const std::string sqliteFile = "access.db"; // the same rows
const std::string accessProject = "project.accdb";
const std::string sqliteProject = "project.db"; // the same tables
constexpr unsigned rows = 500000;
constexpr unsigned junctions = 1000;
constexpr unsigned years = 100;
constexpr unsigned months = years * 12;

template <typename T>
void put(char* to, T value) {
  std::memcpy(to, &value, sizeof value);
}

/// Four decimals.
double valueOf(unsigned row) { return static_cast<double>(row * 7919ULL % 9999991ULL) / 10000.0; }

void writeAccessRows(const Setting& setting) {
  const AccessRows table{{"EstHidr", "Valor"}, rows, [](char* fixed, unsigned row) {
                           put(fixed, static_cast<std::int32_t>(row % 5000 + 1));
                           put(fixed + 4, valueOf(row));
                         }};
  writeAccessStandIn(setting.samples / "example-2010.mdb", accessFile, {table});
}

/// The sample's project with more junctions, 21 to 23 of its own among them, more years, and a flow for each month.
void writeAccessProject(const Setting& setting) {
  const auto idOf = [](unsigned junction) { return static_cast<std::int32_t>(20 + junction); };
  const AccessRows settings{{"DataHoraIni", "Duracao", "OptCalc", "TipoSimul"}, 1, [](char* fixed, unsigned) {
                              put(fixed + 8, static_cast<std::int32_t>(years));
                            }};
  const AccessRows nodes{{"NumPonto", "Nome", "Coord_X", "Coord_Y"}, junctions, [idOf](char* fixed, unsigned row) {
                           put(fixed, idOf(row));
                         }};
  const AccessRows flows{{"NumPto", "Data", "Valor"}, junctions * months, [idOf](char* fixed, unsigned row) {
                           put(fixed, idOf((row - 1) / months + 1));
                           put(fixed + 12, valueOf(row));
                         }};
  writeAccessStandIn(setting.samples / "example-2013.accdb", accessProject, {settings, nodes, flows});
}

void copyTable(sqlite3* from, const Sqlite& to, const std::string& name) {
  const std::string quoted = LagomareQuery::quotedName(name);
  const auto source = LagomareQuery::prepare(from, "select * from " + quoted);
  const int columns = sqlite3_column_count(source.get());
  std::string names;
  std::string marks;
  for (int column = 0; column < columns; ++column) {
    names += (column == 0 ? "" : ", ") + LagomareQuery::quotedName(sqlite3_column_name(source.get(), column));
    marks += column == 0 ? "?" : ", ?";
  }
  execute(to, "create table " + quoted + " (" + names + ")");
  const Statement insert = prepare(to, "insert into " + quoted + " values (" + marks + ")");
  while (LagomareQuery::step(source.get())) {
    for (int column = 0; column < columns; ++column)
      sqlite3_bind_value(insert.get(), column + 1, sqlite3_column_value(source.get(), column));
    if (sqlite3_step(insert.get()) != SQLITE_DONE)
      throw std::runtime_error("SQLite takes no row");
    sqlite3_reset(insert.get());
  }
}

/// All tables of an Access file as a SQLite file.
void copyToSqlite(const std::string& access, const std::string& sqlite) {
  const auto from = LagomareQuery::openDatabase(access);
  const Sqlite to = create(sqlite);
  execute(to, "begin");
  const auto names = LagomareQuery::prepare(from.connection.get(), "select name from sqlite_master");
  while (LagomareQuery::step(names.get()))
    copyTable(from.connection.get(), to, std::string(LagomareQuery::textColumn(names.get(), 0)));
  execute(to, "commit");
}

double query(const Setting& setting, const std::string& database) {
  return runCommand({setting.programs / "lagomare-query", database, "select EstHidr, Valor from FrontEH", "0"},
                    "log.txt")
      .seconds;
}

double exportTable() { return runCommand({"mdb-export", accessFile, "FrontEH"}, "export.csv").seconds; }

std::string contentOf(const std::string& file) {
  std::ifstream in(file);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

std::string answerOf(const Setting& setting, const std::string& database) {
  static_cast<void>(query(setting, database));
  return contentOf("query-result.txt");
}

/// mdb-export's lines under its head, in the form of an answer. It writes 16 digits; the values have fewer.
std::string exported() {
  static_cast<void>(exportTable());
  std::ifstream in("export.csv");
  std::ostringstream text;
  text << std::setprecision(15);
  std::string head;
  std::getline(in, head);
  unsigned id = 0;
  char comma = ',';
  double value = 0.0;
  while (in >> id >> comma >> value)
    text << id << ' ' << value << " .\n";
  return text.str();
}

void requireEqualRows(const Setting& setting) {
  const std::string answer = answerOf(setting, accessFile);
  if (answerOf(setting, sqliteFile) != answer)
    throw std::runtime_error("the Access file's rows are read otherwise than the SQLite file's");
  if (exported() != answer)
    throw std::runtime_error("mdb-export reads other rows");
}

std::string digestOf(const Setting& setting, const std::string& database) {
  runCommand({setting.programs / "lagomare-bench-import", "ours", "", database}, "import.txt");
  std::string digest;
  std::ifstream("import.txt") >> digest;
  return digest;
}

void requireEqualScenarios(const Setting& setting) {
  if (digestOf(setting, accessProject) != digestOf(setting, sqliteProject))
    throw std::runtime_error("the Access file imports to another scenario than the SQLite file");
}

void addRows(Table& table, const Setting& setting) {
  writeAccessRows(setting);
  copyToSqlite(accessFile, sqliteFile);
  Work& work = table.add("query executable on Access, 500,000 rows of an integer and a double "
                         "(plain: `mdb-export`; floor: our SQLite back end on the same rows)",
                         nanoseconds);
  work.setCheck([&setting] { requireEqualRows(setting); });
  work.add("plain", rows, exportTable);
  work.add("ours", rows, [&setting] { return query(setting, accessFile); });
  work.add("floor", rows, [&setting] { return query(setting, sqliteFile); });
  work.aimAtLeast("plain", "ours", 2.0).aimAtMost("ours", "floor", 1.3);
}

void addImport(Table& table, const Setting& setting) {
  static_cast<void>(inChild([&setting] {
    writeAccessProject(setting);
    copyToSqlite(accessProject, sqliteProject);
    return 0.0;
  }));
  Work& work = table.add("`lagomare import` of an Access file of " + std::to_string(junctions * months / 1000) +
                             " thousand rows, wall clock (floor: the same from SQLite)",
                         wholeSeconds);
  work.setCheck([&setting] { requireEqualScenarios(setting); });
  for (const auto& [contender, project] : {std::pair("ours", accessProject), std::pair("floor", sqliteProject)})
    work.add(contender, 1,
             [&setting, file = project] { return runCommand(importCommand(setting, file), "log.txt").clockSeconds; });
  work.aimAtMost("ours", "floor", 1.3);
}

} // namespace

void addAccessBenches(Table& table, const Setting& setting) {
  addRows(table, setting);
  addImport(table, setting);
}

} // namespace LagomareBench
