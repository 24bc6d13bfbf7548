#include "tools/query/Session.h"

#include "tests/query/QueryTest.h"
#include "tools/query/Program.h"
#include "tools/query/sqlite/Sqlite.h"
#include "tools/system/StandardStreams.h"
#include <algorithm>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <tuple>
#include <unistd.h>
#include <utility>
#include <vector>

namespace LagomareQuery {
namespace {

/// Gives one line after the other; a line is made when it is asked for.
class Lines : public std::stringbuf {
public:
  explicit Lines(std::vector<std::function<std::string()>> lines) : lines_(std::move(lines)) {}

protected:
  int underflow() override {
    if (next_ == lines_.size())
      return traits_type::eof();
    str(lines_[next_++]());
    return std::stringbuf::underflow();
  }

private:
  std::vector<std::function<std::string()>> lines_;
  std::size_t next_ = 0;
};

class SessionTest : public QueryTest {
protected:
  SessionTest() {
    runSql("p.db", "CREATE TABLE t(a INTEGER, b TEXT); INSERT INTO t VALUES(2, 'x y'), (1, NULL);"
                   "CREATE INDEX i ON t(a)");
  }

  /// All answers to the lines of a session that must end by itself or, if `isChanged`, early.
  static std::string session(const std::string& database, std::vector<std::function<std::string()>> lines,
                             bool isChanged = false) {
    Lines buffer(std::move(lines));
    std::istream queries(&buffer);
    AnswerStream answers;
    testing::internal::CaptureStdout();
    EXPECT_EQ(runSession(database, queries, answers), !isChanged);
    return testing::internal::GetCapturedStdout();
  }
  static std::string session(const std::string& database, const std::string& lines) {
    return session(database, {[&] { return lines; }});
  }
};

TEST_F(SessionTest, EachQueryHasItsAnswerAlsoBehindOneThatFailed) {
  EXPECT_EQ(
      session("p.db", "0 SELECT * FROM t\n"
                      "1 SELECT a FROM t WHERE a > 0\n" // by an index, were it not for the stored order
                      "0 SELECT a FROM t WHERE a > 1\n"
                      "0 SELECT 1 FROM nada\n"
                      "0 SELECT a, FORMAT(CASE a WHEN 1 THEN 'x' ELSE '2000-01-15' END, 'dd') FROM t\n"
                      "2 SELECT 1\n"
                      "\n"
                      "0 DELETE FROM t\n"
                      "0 SELECT a FROM t WHERE a > 5\r\n"
                      "0 SELECT max(a) FROM t"),
      "2 x\u00A0y .\n1  .\n\4complete\n"
      "2 .\n1 .\n\4complete\n"
      "2 .\n\4complete\n"
      "\4error: no such table: nada\n"
      "\4error: FORMAT: 'x' is no date (YYYY-MM-DD, with or without HH:MM:SS)\n"
      "\4error: a query of a session is one line of text, FLAG SQL: 0 or 1, a blank, and the SQL\n"
      "\4error: a query of a session is one line of text, FLAG SQL: 0 or 1, a blank, and the SQL\n"
      "\4error: only one statement that selects is answered here: nothing that writes, attaches or changes settings\n"
      "\4complete\n"
      "2 .\n\4complete\n");
  EXPECT_EQ(session("p.db", ""), "");
}

TEST_F(SessionTest, TheDatabaseStaysAsItWasOrTheSessionEnds) {
  const std::string access = contentOf(std::string(SAMPLES) + "/types.mdb");
  const std::string whole = contentOf("p.db");
  runSql("ahead.db", "PRAGMA journal_mode = WAL; CREATE TABLE t(a); INSERT INTO t VALUES(1), (2)");
  const std::tuple<const char*, const char*, std::function<void()>> changes[] = {
      {"p.mdb", "Vazia", [&] { writeFile("p.mdb", access + "x"); }},
      {"p.mdb", "Vazia", [] { std::filesystem::resize_file("p.mdb", 4096); }},
      {"p.db", "t", [&] { writeFile("p.db", whole.substr(0, 4096)); }},
      {"ahead.db", "t", [] { runSql("ahead.db", "DELETE FROM t; VACUUM"); }},
      {"p.db", "t", [] { std::filesystem::rename("ahead.db", "p.db"); }},
  };
  for (const auto& [database, table, change] : changes) {
    writeFile("p.mdb", access);
    writeFile("p.db", whole);
    const std::string query = std::string("0 SELECT count(*) FROM ") + table + "\n";
    const auto changeFirst = [&, make = change] { return make(), query; };
    const std::string found = session(database, {[&] { return query; }, changeFirst, [&] { return query; }}, true);
    EXPECT_EQ(std::count(found.begin(), found.end(), '\4'), 2) << found;
    EXPECT_NE(found.find("\4error: the database was changed"), std::string::npos) << found;
  }
}

TEST_F(SessionTest, AWriterOfTheSameDatabaseMustWait) {
  const auto query = [] { return "0 SELECT sum(a) FROM t\n"; };
  const auto writeFirst = [&] {
    const Connection writer = openConnection("p.db", SQLITE_OPEN_READWRITE);
    EXPECT_EQ(sqlite3_exec(writer.get(), "DELETE FROM t", nullptr, nullptr, nullptr), SQLITE_BUSY);
    return query();
  };
  EXPECT_EQ(session("p.db", {query, writeFirst}), "3 .\n\4complete\n3 .\n\4complete\n");
}

/// An answer without end is read while it is written, until its reader goes.
TEST_F(SessionTest, AnswersStreamAndTheReaderMayGo) {
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  const pid_t child = fork();
  if (child == 0) {
    LagomareTools::prepareStandardStreams();
    writeFile("queries", "0 WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT i FROM n\n");
    if (!std::freopen("queries", "r", stdin) || !std::freopen("errors", "w", stderr))
      _exit(3);
    dup2(ends[1], STDOUT_FILENO);
    close(ends[0]);
    close(ends[1]);
    _exit(runProgram({"--session", "p.db"}));
  }
  close(ends[1]);
  char first[5] = {};
  EXPECT_EQ(read(ends[0], first, 4), 4);
  EXPECT_STREQ(first, "1 .\n");
  close(ends[0]);
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_EQ(WTERMSIG(status), SIGPIPE);
  EXPECT_EQ(contentOf("errors"), "");
}

TEST_F(SessionTest, TablesAndColumnsCanBeListed) {
  const std::string list = "0 select m.name, p.name from sqlite_master as m join pragma_table_info(m.name) as p\n";
  EXPECT_EQ(session("p.db", list), "t a .\nt b .\n\4complete\n");
  const std::string found = session(std::string(SAMPLES) + "/types.mdb", list);
  EXPECT_EQ(found.rfind("Tipos Id .\nTipos CLong .\n", 0), 0u) << found;
  EXPECT_NE(found.find("\nTabela\u00A0com\u00A0espaço Código\u00A0do\u00A0nó .\n"), std::string::npos) << found;
  EXPECT_EQ(found.find("MSys"), std::string::npos) << found;
  // A table that is only linked has no columns here.
  EXPECT_EQ(session(std::string(SAMPLES) + "/jet3.mdb", list).find("Ligada"), std::string::npos);
}

} // namespace
} // namespace LagomareQuery
