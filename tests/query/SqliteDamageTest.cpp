#include "tests/query/QueryTest.h"
#include "tests/query/Sweep.h"
#include "tools/query/QueryError.h"
#include "tools/query/sqlite/Sqlite.h"
#include "tools/query/sqlite/WriteAheadLog.h"
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace LagomareQuery {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t pageSize = 512;

class SqliteDamageTest : public QueryTest {
protected:
  static unsigned number(const std::string& bytes, std::size_t place, unsigned size) {
    unsigned value = 0;
    for (const char byte : bytes.substr(place, size))
      value = value << 8 | static_cast<unsigned char>(byte);
    return value;
  }

  /// Two tables whose pages look alike, and an index.
  static std::string tables() {
    runSql(
        "whole.db",
        "PRAGMA page_size = 512; CREATE TABLE t(a INTEGER, b REAL); CREATE TABLE u(a INTEGER, b REAL);"
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 300) INSERT INTO t SELECT i, i / 7.0 "
        "FROM n; INSERT INTO u SELECT a, -b FROM t; CREATE INDEX i ON t(b)");
    return contentOf("whole.db");
  }

  /// A log of transactions with a few frames each, as its writer leaves it; each adds a hundred rows.
  static void makeLog(int transactions, const std::string& before = "") {
    fs::remove_all("project");
    fs::create_directory("project");
    const Connection writer = openConnection("writer.db", SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    const auto run = [&](const std::string& sql) {
      ASSERT_EQ(sqlite3_exec(writer.get(), sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK) << sql;
    };
    run("DROP TABLE IF EXISTS t; PRAGMA page_size = 512; PRAGMA journal_mode = WAL; PRAGMA wal_autocheckpoint = 0;"
        "CREATE TABLE t(a INTEGER); PRAGMA wal_checkpoint(TRUNCATE);" +
        before);
    for (int i = 0; i < transactions; ++i)
      run("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 100) INSERT INTO t SELECT i FROM "
          "n");
    for (const char* suffix : {"", "-wal"})
      fs::copy_file(std::string("writer.db") + suffix, std::string("project/p.db") + suffix);
  }
};

/// Everything but the cells of the tables' and the index's leaves.
TEST_F(SqliteDamageTest, OneDamagedByteOutsideTheCellsLosesNoRow) {
  const std::string whole = tables();
  std::vector<std::size_t> places;
  for (std::size_t page = 0; page < whole.size(); page += pageSize) {
    const std::size_t header = page == 0 ? 100 : page;
    const bool isLeaf = whole[header] == 13 || whole[header] == 10;
    const std::size_t end = isLeaf ? header + 8 + 2 * number(whole, header + 3, 2) : page + pageSize;
    for (std::size_t place = page; place < end; ++place)
      places.push_back(place);
  }
  const SweepOutcome outcome = sweep("SQLite", whole, places, {"t", "u"});
  EXPECT_GT(outcome.errors, 0u);
  EXPECT_EQ(outcome.lostRows, 0u);
}

/// The smallest damage: a page says that it holds one row less.
TEST_F(SqliteDamageTest, ACallOfOneQueryChecksTheTablesThatItReads) {
  std::string bytes = tables();
  runSql("whole.db", "CREATE VIEW v AS SELECT a FROM t");
  bytes = contentOf("whole.db");
  const std::size_t root = pageSize * (std::stoul(answer("whole.db", "SELECT rootpage FROM sqlite_master "
                                                                     "WHERE name = 't'")) -
                                       1);
  const std::size_t leaf = pageSize * (number(bytes, root + number(bytes, root + 12, 2), 4) - 1);
  ASSERT_EQ(bytes[leaf], 13);
  --bytes[leaf + 4];
  writeFile("damaged.db", bytes);
  for (const char* sql :
       {"SELECT count(*) FROM t", "SELECT a FROM v", "SELECT u.a FROM u WHERE u.a IN (SELECT a FROM t)"})
    EXPECT_NE(refusal("damaged.db", sql).find("the database is damaged"), std::string::npos) << sql;
  EXPECT_EQ(answer("damaged.db", "SELECT count(*) FROM u"), "300 .\n");
  // The same with a log, which is read from a copy.
  const Connection writer = openConnection("whole.db", SQLITE_OPEN_READWRITE);
  const char* const change = "PRAGMA journal_mode = WAL; UPDATE u SET a = 0 WHERE a = 1";
  ASSERT_EQ(sqlite3_exec(writer.get(), change, nullptr, nullptr, nullptr), SQLITE_OK);
  bytes = contentOf("whole.db");
  --bytes[leaf + 4];
  writeFile("damaged.db", bytes);
  fs::copy_file("whole.db-wal", "damaged.db-wal");
  EXPECT_NE(refusal("damaged.db", "SELECT count(*) FROM t").find("the database is damaged"), std::string::npos);
}

TEST_F(SqliteDamageTest, ALogIsTakenUpToATornTailAndNoFurther) {
  makeLog(3);
  const std::string log = contentOf("project/p.db-wal");
  constexpr std::size_t frameSize = 24 + pageSize;
  std::vector<std::size_t> commits; // where the transactions end
  for (std::size_t frame = 32; frame < log.size(); frame += frameSize)
    if (number(log, frame + 4, 4) != 0)
      commits.push_back(frame + frameSize);
  ASSERT_EQ(commits.size(), 3u);
  ASSERT_EQ(commits.back(), log.size());
  ASSERT_GT(commits[1] - commits[0], 2 * frameSize);
  const fs::path file = "project/p.db-wal";
  std::fstream stream(file, std::ios::in | std::ios::out | std::ios::binary);
  for (std::size_t place = 0; place < log.size(); ++place) {
    stream.seekp(static_cast<std::streamoff>(place)).put(static_cast<char>(log[place] ^ 1)).flush();
    EXPECT_THROW(requireWholeLog(file), QueryError) << place;
    stream.seekp(static_cast<std::streamoff>(place)).put(log[place]).flush();
  }
  for (std::size_t size = log.size(); size > 0; --size) {
    fs::resize_file(file, size);
    if (size < commits[0]) {
      EXPECT_THROW(requireWholeLog(file), QueryError) << size;
      continue;
    }
    EXPECT_NO_THROW(requireWholeLog(file)) << size;
    const std::size_t inFrame = (size - 32) % frameSize;
    if (inFrame > 1 && inFrame != 24 && inFrame != frameSize - 1)
      continue;
    // SQLite takes as many transactions as the log is said to hold.
    const auto whole = std::count_if(commits.begin(), commits.end(), [&](std::size_t end) { return end <= size; });
    EXPECT_EQ(answer("project/p.db", "SELECT count(*) FROM t"), std::to_string(100 * whole) + " .\n") << size;
  }
}

/// A log that is begun anew keeps older frames behind the new ones.
TEST_F(SqliteDamageTest, OlderFramesBehindTheLogsEndAreNoDamage) {
  makeLog(1, "INSERT INTO t VALUES(1), (2); INSERT INTO t VALUES(3); INSERT INTO t SELECT randomblob(400) FROM t, t x;"
             "DELETE FROM t; PRAGMA wal_checkpoint(RESTART);");
  const std::string log = contentOf("project/p.db-wal");
  ASSERT_NE(number(log, log.size() - 24 - pageSize + 8, 4), number(log, 16, 4)); // the salt
  EXPECT_EQ(answer("project/p.db", "SELECT count(*) FROM t"), "100 .\n");
  writeFile("project/p.db-wal", log.substr(0, 32 + 24) + log.substr(32 + 24, pageSize - 1) + "x");
  EXPECT_NE(refusal("project/p.db", "SELECT count(*) FROM t").find("-wal file is damaged or cut off"),
            std::string::npos);
}

} // namespace
} // namespace LagomareQuery
