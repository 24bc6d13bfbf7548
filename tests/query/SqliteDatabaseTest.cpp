#include "tools/query/sqlite/SqliteDatabase.h"

#include "tests/query/QueryTest.h"
#include "tools/query/Program.h"
#include <cstdint>
#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace LagomareQuery {
namespace {

namespace fs = std::filesystem;

std::set<std::string> filesIn(const fs::path& folder) {
  std::set<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder))
    names.insert(entry.path().filename());
  return names;
}

class SqliteDatabaseTest : public QueryTest {
protected:
  SqliteDatabaseTest() {
    fs::create_directory("project");
    fs::create_directory("tmp");
    fs::permissions("tmp", fs::perms::all);
    setenv("TMPDIR", fs::absolute("tmp").c_str(), 1);
  }
  ~SqliteDatabaseTest() override { unsetenv("TMPDIR"); }

  /// Runs SQL on another database and takes its files as they are before it is closed.
  static void takeOpenDatabase(const std::string& sql) {
    const Connection writer = openConnection("writer.db", SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    ASSERT_EQ(sqlite3_exec(writer.get(), sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK);
    for (const char* suffix : {"", "-wal", "-journal"})
      if (fs::exists(std::string("writer.db") + suffix))
        fs::copy_file(std::string("writer.db") + suffix, std::string("project/p.db") + suffix);
  }
  static void expectSum(const std::string& sum) {
    const auto before = filesIn("project");
    EXPECT_EQ(answer("project/p.db", "SELECT count(*), sum(a) FROM t"), sum + " .\n");
    EXPECT_EQ(filesIn("project"), before);
    EXPECT_TRUE(fs::is_empty("tmp"));
  }
};

constexpr const char* thousandRows =
    "CREATE TABLE t(a INTEGER, b TEXT); WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 1000) "
    "INSERT INTO t SELECT i, hex(zeroblob(100)) FROM n;";

TEST_F(SqliteDatabaseTest, WriteAheadModeLeavesNothingBeside) {
  runSql("project/p.db", std::string("PRAGMA journal_mode = WAL;") + thousandRows);
  EXPECT_EQ(filesIn("project"), std::set<std::string>{"p.db"});
  expectSum("1000 500500");
}

TEST_F(SqliteDatabaseTest, RowsInAWriteAheadFileAreRead) {
  takeOpenDatabase(std::string("PRAGMA journal_mode = WAL; PRAGMA wal_autocheckpoint = 0;") + thousandRows);
  ASSERT_GT(fs::file_size("project/p.db-wal"), 100000u);
  expectSum("1000 500500");
  // The -wal file stands beside the file that a link leads to.
  fs::create_symlink("project/p.db", "link.db");
  EXPECT_EQ(answer("link.db", "SELECT count(*) FROM t"), "1000 .\n");
}

TEST_F(SqliteDatabaseTest, AHotJournalIsRolledBackInACopy) {
  takeOpenDatabase(std::string(thousandRows) + "PRAGMA cache_size = 1; BEGIN; UPDATE t SET a = 0;");
  ASSERT_GT(fs::file_size("project/p.db-journal"), 10000u);
  fs::resize_file("project/p.db", fs::file_size("project/p.db") + 100); // its writer died while it added a page
  const std::string before = contentOf("project/p.db");
  expectSum("1000 500500");
  EXPECT_EQ(contentOf("project/p.db"), before);
}

/// Cut within its last page or by whole ones, in each way of opening.
TEST_F(SqliteDatabaseTest, ACutDatabaseIsDamaged) {
  const std::function<void()> makers[] = {
      [] { runSql("project/p.db", thousandRows); },
      [] { runSql("project/p.db", std::string("PRAGMA journal_mode = WAL;") + thousandRows); },
      [] {
        takeOpenDatabase(std::string(thousandRows) +
                         "PRAGMA journal_mode = WAL; PRAGMA wal_autocheckpoint = 0; DELETE FROM t WHERE a = 1");
      },
      [] { takeOpenDatabase(std::string(thousandRows) + "PRAGMA cache_size = 1; BEGIN; UPDATE t SET a = 0"); },
  };
  for (const auto& make : makers)
    for (const std::uintmax_t cut : {1u, 2000u, 4095u, 4096u, 3 * 4096u, 3 * 4096u + 10}) {
      for (const char* name : {"writer.db", "project"})
        fs::remove_all(name);
      fs::create_directory("project");
      make();
      fs::resize_file("project/p.db", fs::file_size("project/p.db") - cut);
      EXPECT_NE(refusal("project/p.db", "SELECT sum(a) FROM t").find("restore it from a backup"), std::string::npos)
          << &make - makers << ' ' << cut;
    }
}

TEST_F(SqliteDatabaseTest, ADatabaseThatNoCopyCanBeMadeOfIsAnError) {
  takeOpenDatabase(std::string("PRAGMA journal_mode = WAL; PRAGMA wal_autocheckpoint = 0;") + thousandRows);
  setenv("TMPDIR", "/nowhere", 1);
  EXPECT_NE(refusal("project/p.db", "SELECT * FROM t").find("open and close the database once"), std::string::npos);
}

TEST_F(SqliteDatabaseTest, AFolderThatMayOnlyBeReadIsEnough) {
  runSql("project/rollback.db", thousandRows);
  runSql("project/ahead.db", std::string("PRAGMA journal_mode = WAL;") + thousandRows);
  takeOpenDatabase(std::string("PRAGMA journal_mode = WAL; PRAGMA wal_autocheckpoint = 0;") + thousandRows);
  fs::permissions("project", fs::perms(0555));
  for (const char* name : {"project/rollback.db", "project/ahead.db", "project/p.db"}) {
    const int status = statusOfChild([&] {
      if (geteuid() == 0 && setuid(65534) != 0) // whom no folder is closed to may do this as nobody
        _exit(2);
      _exit(runProgram({name, "SELECT count(*) FROM t", "0"}));
    });
    EXPECT_EQ(status, 0) << name;
    EXPECT_EQ(contentOf("query-result.txt"), "1000 .\n");
    fs::remove("query-result.txt");
  }
  fs::permissions("project", fs::perms::owner_all);
}

TEST_F(SqliteDatabaseTest, AnyNameCanBeOpened) {
  const std::string longest(255, 'n'); // its companions could not be named
  for (const char* name :
       {"with blank.db", "it's \"x\" $HOME `id`.db", "100%25?mode=rw&x#y.db", "-dash.db", "line\nbreak.db",
        "Açude São João.db", "file:x.db", ":memory:", "byte\xFF.db", longest.c_str()}) {
    runSql("plain.db", "CREATE TABLE t(a); INSERT INTO t VALUES(5)");
    fs::rename("plain.db", name);
    EXPECT_EQ(answer(name, "SELECT a FROM t"), "5 .\n") << name;
  }
}

/// SQLite takes paths of 512 bytes at most.
TEST_F(SqliteDatabaseTest, AnOverlongPathIsAnError) {
  runSql("plain.db", "CREATE TABLE t(a)");
  const std::string folder = fs::absolute(".").string() + "/" + std::string(250, 'f') + "/" + std::string(250, 'g');
  fs::create_directories(folder);
  fs::rename("plain.db", folder + "/p.db");
  EXPECT_NE(refusal(folder + "/p.db", "SELECT a FROM t").find("that its path is not overlong"), std::string::npos);
}

} // namespace
} // namespace LagomareQuery
