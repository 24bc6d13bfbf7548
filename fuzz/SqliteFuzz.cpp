// A damaged SQLite file gives an error or the rows of each table, of which cells may be changed; so does one with a
// write-ahead log that holds three commits and, behind them, frames of an older use. A log damaged behind a whole
// commit may be one that a crash cut short: the rows of that commit are enough then. The input is a Damage of: 0 a
// database without a log, 1 one with a log, 2 the log.

#include "fuzz/Damage.h"
#include "fuzz/Finding.h"
#include "fuzz/Tables.h"
#include "fuzz/Workplace.h"
#include "tools/query/sqlite/Sqlite.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

using namespace LagomareFuzz;
using namespace LagomareQuery;

namespace fs = std::filesystem;

namespace {

constexpr std::size_t pageSize = 512;
constexpr std::size_t logHeaderSize = 32;
constexpr std::size_t frameSize = pageSize + 24;

constexpr const char* project = R"(
pragma page_size = 512;
create table Vazao (Pto INTEGER, U REAL);
create index VazaoPto on Vazao (Pto, U);
create table Nome (Id INTEGER PRIMARY KEY, Texto TEXT);
create table Chave (Id TEXT PRIMARY KEY, Valor REAL) without rowid;
create table n as with recursive n(n) as (select 1 union all select n + 1 from n where n < 60) select n from n;
insert into Vazao select n % 7, n * 0.125 from n;
insert into Nome select n * 3, 'Nó ' || n from n;
insert into Nome values (200, printf('%.2000c', 'x'));
insert into Chave select 'k' || n, n * 1.5 from n;
drop table n;
)";

void execute(const Connection& connection, const std::string& sql) {
  require(sqlite3_exec(connection.get(), sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK,
          sqlite3_errmsg(connection.get()));
}

Connection makeDatabase(const fs::path& file) {
  Connection connection = openConnection(file.string(), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  execute(connection, project);
  return connection;
}

/// What the log holds up to the end of one of its commits.
struct Commit {
  std::size_t end;
  Tables tables;
};

struct Sound {
  std::string database;
  std::string log;             ///< may be empty
  std::vector<Commit> commits; ///< the first is the database without the log
};

void writeFiles(const Sound& sound, const fs::path& file) {
  writeFile(file, sound.database);
  if (sound.log.empty())
    fs::remove(file.string() + "-wal");
  else
    writeFile(file.string() + "-wal", sound.log);
}

Sound withoutLog() {
  const fs::path file = workplace() / "plain.db";
  makeDatabase(file).reset();
  return {contentOf(file), "", {{0, tablesOf(file)}}};
}

Sound withLog() {
  const fs::path file = workplace() / "logged.db";
  const fs::path copy = workplace() / "copy.db";
  const Connection connection = makeDatabase(file);
  execute(connection, "pragma journal_mode = wal; pragma wal_autocheckpoint = 0; begin; update Vazao set U = U + 1; "
                      "update Chave set Valor = Valor + 1; commit; pragma wal_checkpoint");
  Sound sound{contentOf(file), "", {}};
  writeFiles(sound, copy);
  sound.commits.push_back({0, tablesOf(copy)});
  static int frames = 0;
  sqlite3_wal_hook(
      connection.get(), [](void*, sqlite3*, const char*, int count) { return frames = count, SQLITE_OK; }, nullptr);
  for (const char* change : {"insert into Nome values (300, 'a')", "insert into Vazao values (9, 0.5), (9, 1.5)",
                             "insert into Chave values ('z', 0); insert into Nome values (301, 'b')"}) {
    execute(connection, std::string("begin; ") + change + "; commit");
    sound.log = contentOf(file.string() + "-wal");
    writeFiles(sound, copy);
    sound.commits.push_back({logHeaderSize + static_cast<std::size_t>(frames) * frameSize, tablesOf(copy)});
  }
  require(sound.log.size() > sound.commits.back().end, "the log has no older frames");
  return sound;
}

/// What may be found where the log is damaged: everything; behind a whole commit, or where nothing is left of the log,
/// no more than what was committed before the damage, too.
std::vector<Tables> statesOf(const Sound& sound, const std::string& log) {
  const auto place = static_cast<std::size_t>(
      std::mismatch(sound.log.begin(), sound.log.end(), log.begin(), log.end()).first - sound.log.begin());
  std::vector<Tables> states;
  for (const Commit& commit : sound.commits) {
    if (commit.end <= place)
      states.clear();
    if (commit.end > 0 || log.size() <= logHeaderSize)
      states.push_back(commit.tables);
  }
  return states;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::array<Sound, 2> kinds{withoutLog(), withLog()};
  static const fs::path file = workplace() / "damaged.db";
  const Damage damage(std::string(reinterpret_cast<const char*>(data), size));
  const auto kind = damage.file() % 3;
  Sound sound = kinds[std::min(kind, 1U)];
  std::string& bytes = kind == 2 ? sound.log : sound.database;
  bytes = damage.appliedTo(bytes);
  writeFiles(sound, file);
  const auto states = kind == 2 ? statesOf(kinds[1], sound.log) : std::vector{sound.commits.back().tables};
  std::string missing;
  for (const Tables& state : states)
    if ((missing = missingIn(file, state, damage.changes())).empty())
      return 0;
  require(false, missing);
  return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned seed) {
  return mutateDamage(data, size, maxSize, seed);
}
