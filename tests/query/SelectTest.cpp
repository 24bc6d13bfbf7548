#include "tests/query/QueryTest.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <string>

namespace LagomareQuery {
namespace {

using testing::HasSubstr;

class SelectTest : public QueryTest {
protected:
  SelectTest() { runSql("t.db", "CREATE TABLE t(id INTEGER, nome TEXT); INSERT INTO t VALUES(1, 'a'), (2, 'b')"); }
};

TEST_F(SelectTest, OneSelectingStatementMayBeWrittenInManyWays) {
  for (const char* sql : {"select id from t where id = 2", "  SELECT 2;", "-- first\nSELECT /* in */ 2 ; ;; -- last",
                          "WITH w AS (SELECT 2 AS x) SELECT x FROM w", "VALUES(2)",
                          "with recursive n(i) as (values(1) union all select i + 1 from n where i < 2) "
                          "select i from n where i = 2"})
    EXPECT_EQ(answer("t.db", sql), "2 .\n") << sql;
}

TEST_F(SelectTest, NothingElseIsAnswered) {
  const std::string before = contentOf("t.db");
  for (const char* sql :
       {"", "-- only a comment", "SELECT 1; SELECT 2", "SELECT 1; nonsense", "INSERT INTO t VALUES(3, 'c')",
        "UPDATE sqlite_master SET sql = ''", "WITH w AS (SELECT 1) DELETE FROM t", "CREATE TEMP TABLE x(a)",
        "DROP TABLE t", "PRAGMA user_version", "PRAGMA journal_mode = WAL", "ATTACH 'x.db' AS x", "BEGIN",
        "SAVEPOINT s", "VACUUM INTO 'x.db'", "ANALYZE", "EXPLAIN SELECT 1", "SELECT load_extension('x')", "SELECT ?"})
    EXPECT_NE(refusal("t.db", sql), "") << sql;
  EXPECT_EQ(contentOf("t.db"), before);
  EXPECT_FALSE(std::filesystem::exists("x.db"));
}

TEST_F(SelectTest, ErrorsNameWhatIsMissing) {
  EXPECT_THAT(refusal("t.db", "SELECT * FROM Pontos"), HasSubstr("Pontos"));
  EXPECT_THAT(refusal("t.db", "SELECT Valor FROM t"), HasSubstr("Valor"));
  EXPECT_THAT(refusal("t.db", "SELECT \"Valor\" FROM t"), HasSubstr("Valor")); // never the text 'Valor'
}

} // namespace
} // namespace LagomareQuery
