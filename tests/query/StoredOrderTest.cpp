#include "tests/query/QueryTest.h"

#include <string>
#include <vector>

namespace LagomareQuery {
namespace {

class StoredOrderTest : public QueryTest {
protected:
  StoredOrderTest() {
    runSql("order.db", "CREATE TABLE t(id INTEGER, v INTEGER, s TEXT);"
                       "INSERT INTO t VALUES(1, 50, 'x'), (1, 40, 'y'), (2, 30, 'z'), (2, 20, 'x'), (3, 10, 'y');"
                       "CREATE INDEX byValue ON t(v, s); CREATE INDEX byId ON t(id, v);"
                       "CREATE VIEW seen AS SELECT v FROM t WHERE v > 0;"
                       "CREATE TABLE key(id INTEGER PRIMARY KEY, v TEXT UNIQUE);"
                       "INSERT INTO key VALUES(5, 'a'), (3, 'c'), (1, 'b'), (2, 'd');"
                       "CREATE TABLE \"a \"\"b\"\"\"(rowid TEXT, v INT, PRIMARY KEY(v));"
                       "INSERT INTO \"a \"\"b\"\"\" VALUES('z', 2), ('y', 1);"
                       "CREATE TABLE bare(a, b COLLATE NOCASE, PRIMARY KEY(b, a DESC)) WITHOUT ROWID;"
                       "INSERT INTO bare VALUES(1, 'b'), (2, 'A'), (3, 'B'); CREATE INDEX byA ON bare(a)");
  }
  void expectRows(const std::string& sql, const std::vector<std::string>& rows) {
    std::string expected;
    for (const std::string& row : rows)
      expected += row + " .\n";
    EXPECT_EQ(answer("order.db", sql), expected) << sql;
  }
};

TEST_F(StoredOrderTest, NoIndexShufflesRows) {
  expectRows("SELECT v FROM t", {"50", "40", "30", "20", "10"});
  expectRows("SELECT v, s FROM t WHERE v > 15", {"50 x", "40 y", "30 z", "20 x"});
  expectRows("SELECT v FROM t WHERE id = 1", {"50", "40"});
  expectRows("SELECT v FROM T WHERE id IN (3, 1)", {"50", "40", "10"});
  expectRows("SELECT v FROM t WHERE v = 10 OR id = 1", {"50", "40", "10"});
  expectRows("SELECT v FROM seen", {"50", "40", "30", "20", "10"});
  expectRows("SELECT v FROM key", {"b", "d", "c", "a"});
  expectRows("SELECT v FROM key WHERE v > 'a'", {"b", "d", "c"});
  expectRows("SELECT id FROM key WHERE id = 5 OR id BETWEEN 1 AND 2", {"1", "2", "5"});
  expectRows("SELECT v FROM \"a \"\"b\"\"\" WHERE v > 0", {"2", "1"});
  expectRows("SELECT a FROM bare WHERE a > 0", {"2", "3", "1"});
  expectRows("SELECT x.v, y.s FROM t x JOIN t y ON x.v = y.v WHERE x.v > 15", {"50 x", "40 y", "30 z", "20 x"});
  expectRows("WITH w AS (SELECT v FROM t) SELECT v FROM w WHERE v > 25 UNION ALL SELECT id FROM key WHERE v > 'b'",
             {"50", "40", "30", "2", "3"});
}

/// By an index that SQLite would build for the query, rows of one key would come in the order of their values.
TEST_F(StoredOrderTest, JoinedRowsKeepTheirOrder) {
  runSql("order.db", "CREATE TABLE e(id INT, n TEXT); INSERT INTO e VALUES(1, 'a'), (2, 'b');"
                     "CREATE TABLE m(id INT, v INT); INSERT INTO m VALUES(1, 9), (2, 5), (1, 3), (2, 7), (1, 4)");
  expectRows("SELECT e.n, m.v FROM e JOIN m ON e.id = m.id", {"a 9", "a 3", "a 4", "b 5", "b 7"});
}

TEST_F(StoredOrderTest, TheStatementsOwnOrderAndGroupsStand) {
  expectRows("SELECT v FROM t ORDER BY v", {"10", "20", "30", "40", "50"});
  expectRows("SELECT v FROM t WHERE v > 15 ORDER BY s DESC, v LIMIT 2", {"30", "40"});
  expectRows("SELECT count(*), sum(v), max(v) FROM t WHERE v > 15", {"4 140 50"});
  expectRows("SELECT id, sum(v) FROM t GROUP BY id ORDER BY id", {"1 90", "2 50", "3 10"});
}

TEST_F(StoredOrderTest, RowidsCanBeAskedFor) {
  expectRows("SELECT rowid, v FROM t WHERE v > 25", {"1 50", "2 40", "3 30"});
  expectRows("SELECT OID, _rowid_, rowid, v FROM \"a \"\"b\"\"\" WHERE v > 0", {"1 1 z 2", "2 2 y 1"});
  expectRows("SELECT count(*), max(rowid) FROM t WHERE v > 25", {"3 3"});
  // Columns of these names, beside what * stands for.
  expectRows("SELECT *, rowid FROM \"a \"\"b\"\"\" WHERE v > 0", {"z 2 z", "y 1 y"});
  runSql("order.db",
         "CREATE TABLE named(oid TEXT, ROWID INT, v INT UNIQUE); INSERT INTO named VALUES('x', 7, 2), ('y', 8, 1)");
  expectRows("SELECT *, oid, rowid FROM named WHERE v > 0", {"x 7 2 x 7", "y 8 1 y 8"});
  EXPECT_NE(refusal("order.db", "SELECT rowid, * FROM t WHERE v > 25").find("name the columns"), std::string::npos);
}

TEST_F(StoredOrderTest, ATableIsNotReachedPastItsShadow) {
  EXPECT_NE(refusal("order.db", "SELECT v FROM main.t WHERE v > 1").find("without 'main.'"), std::string::npos);
}

} // namespace
} // namespace LagomareQuery
