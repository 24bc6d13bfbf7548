#include "access/Interpreter.h"
#include "bench/Benches.h"
#include "bench/Child.h"
#include "bench/Sqlite.h"
#include "bench/Table.h"
#include "bench/plain/PlainRows.h"

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>

namespace LagomareBench {

using namespace Lagomare;

namespace {

const std::string database = "query.db";
const std::string selection = "select NumPto, Valor from LgmVazNat";
const std::string answer = "query-result.txt"; // in the working directory, as every query executable writes it
const std::string listing = "listing.txt";
const std::string script = "small-query.bat"; // the imports in this directory delete a script.bat
constexpr unsigned ids = 500;
constexpr unsigned rowsPerId = 1000;

void writeDatabase() {
  const Sqlite sqlite = create(database);
  execute(sqlite, "create table LgmVazNat (NumPto INTEGER, Valor REAL)");
  execute(sqlite, "with recursive row(n) as (select 0 union all select n + 1 from row where n + 1 < " +
                      std::to_string(ids * rowsPerId) + ") insert into LgmVazNat select n / " +
                      std::to_string(rowsPerId) + " + 1, (n * 7919 % 9999991) / 10000.0 from row");
}

/// What the rows hold, so that no contender can leave reading them out.
double sumInProcess() {
  const Sqlite sqlite = open(database);
  const Statement rows = prepare(sqlite, selection);
  double sum = 0.0;
  while (sqlite3_step(rows.get()) == SQLITE_ROW)
    sum += static_cast<double>(sqlite3_column_int64(rows.get(), 0)) + sqlite3_column_double(rows.get(), 1);
  return sum;
}

double sumOf(const std::string& file, char separator) {
  std::ifstream in(file);
  double sum = 0.0;
  for (std::string line; std::getline(in, line);) {
    const auto fields = Plain::split(line, separator);
    sum += std::stod(fields.at(0)) + std::stod(fields.at(1));
  }
  return sum;
}

double runOurs(const Setting& setting) {
  return runCommand({setting.programs / "lagomare-query", database, selection, "0"}, "log.txt").seconds;
}

double runShell() { return runCommand({"sqlite3", "-list", database, selection}, listing).seconds; }

void requireEqual(const Setting& setting) {
  const double sum = sumInProcess();
  static_cast<void>(runOurs(setting));
  static_cast<void>(runShell());
  if (sumOf(answer, ' ') != sum || sumOf(listing, '|') != sum)
    throw std::runtime_error("the answers to \"" + selection + "\" differ");
}

void addRows(Table& table, const Setting& setting) {
  constexpr double rows = ids * rowsPerId;
  Work& work = table.add("query executable on SQLite, 500,000 rows of an integer and a double "
                         "(plain: `sqlite3 -list`; floor: read in the process)",
                         nanoseconds);
  work.setCheck([&setting] { requireEqual(setting); });
  work.add("plain", rows, runShell);
  work.add("ours", rows, [&setting] { return runOurs(setting); });
  work.add("floor", rows, [] { return inChild([] { return secondsOf(sumInProcess); }); });
  work.aimAtLeast("plain", "ours", 2.5).aimAtMost("ours", "floor", 1.3);
}

/// Runs a command of the interpreter, or whatever stands for it, so many times in one process.
std::function<double()> repeated(unsigned times, const std::function<void()>& run) {
  return [=] {
    return inChild([&] {
      return secondsOf([&] {
        for (unsigned time = 0; time < times; ++time)
          run();
        return 0;
      });
    });
  };
}

void addSmallQuery(Table& table, const Setting& setting) {
  constexpr unsigned times = 50;
  std::ofstream(script) << (setting.programs / "lagomare-query").string() << " \"" << database
                        << "\" \"select 1, 2\" 0\n";
  Work& work = table.add("one small query through the script (plain: `sh script.bat`; ours: `. ./script.bat`; floor: "
                         "start of `true`)",
                         milliseconds);
  work.add("plain", times,
           repeated(times, [] { [[maybe_unused]] const int code = std::system(("sh " + script).c_str()); }));
  work.add("ours", times, repeated(times, [] { runScript(script); }));
  work.add("floor", times, repeated(times, [] { runCommand({"true"}, "/dev/null"); }));
}

} // namespace

void addQueryBenches(Table& table, const Setting& setting) {
  static_cast<void>(inChild([] { return writeDatabase(), 0.0; }));
  addRows(table, setting);
  addSmallQuery(table, setting);
}

} // namespace LagomareBench
