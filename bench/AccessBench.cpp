#include "bench/AccessStandIn.h"
#include "bench/Benches.h"
#include "bench/Child.h"
#include "bench/Sqlite.h"

#include <fstream>
#include <iomanip>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace LagomareBench {

namespace {

const std::string accessFile = "access.mdb";
const std::string sqliteFile = "access.db"; // the same rows
constexpr unsigned rows = 500000;

void writeSqlite() {
  const Sqlite sqlite = create(sqliteFile);
  execute(sqlite, "begin; create table FrontEH (EstHidr INTEGER, Valor REAL)");
  const Statement insert = prepare(sqlite, "insert into FrontEH values (?, ?)");
  for (unsigned row = 1; row <= rows; ++row) {
    sqlite3_bind_int64(insert.get(), 1, row % 5000 + 1);
    sqlite3_bind_double(insert.get(), 2, accessValue(row));
    if (sqlite3_step(insert.get()) != SQLITE_DONE)
      throw std::runtime_error("SQLite takes no row");
    sqlite3_reset(insert.get());
  }
  execute(sqlite, "commit");
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

void requireEqual(const Setting& setting) {
  const std::string answer = answerOf(setting, sqliteFile);
  if (answerOf(setting, accessFile) != answer)
    throw std::runtime_error("the Access file's rows are read otherwise than the SQLite file's");
  if (exported() != answer)
    throw std::runtime_error("mdb-export reads other rows");
}

} // namespace

void addAccessBenches(Table& table, const Setting& setting) {
  writeAccessStandIn(setting.samples / "example-2010.mdb", accessFile, rows);
  writeSqlite();
  Work& work = table.add("query executable on Access, 500,000 rows of an integer and a double "
                         "(plain: `mdb-export`; floor: our SQLite back end on the same rows)",
                         nanoseconds);
  work.setCheck([&setting] { requireEqual(setting); });
  work.add("plain", rows, exportTable);
  work.add("ours", rows, [&setting] { return query(setting, accessFile); });
  work.add("floor", rows, [&setting] { return query(setting, sqliteFile); });
  work.aimAtLeast("plain", "ours", 2.0).aimAtMost("ours", "floor", 1.3);
}

} // namespace LagomareBench
