#include "tools/query/DateFormat.h"

#include "tests/query/QueryTest.h"
#include "tools/query/QueryError.h"

#include <string>

namespace LagomareQuery {
namespace {

using DateFormatTest = QueryTest;

TEST(DateFormat, TakesIsoDatesWithOrWithoutATime) {
  for (const char* date :
       {"2000-01-15", "2000-01-15 13:45", "2000-01-15T13:45", "2000-01-15 13:45:59", "2000-01-15T00:00:00.000"})
    EXPECT_EQ(formatDate(date, "dd/mm/yyyy"), "15/01/2000");
  EXPECT_EQ(formatDate("2000-02-29", "YYYY-MM-DD"), "2000-02-29");
  EXPECT_EQ(formatDate("0099-12-31", "Mmyyyy"), "120099");
}

TEST(DateFormat, RefusesWhatIsNoDateAndUnknownFormats) {
  for (const char* text :
       {"", "abc", "15/01/2000", "2000-13-01", "2000-00-10", "2001-02-29", "1900-02-29", "2000-1-5", "2000-01-15x",
        "2000-01-15 24:00", "2000-01-15 13:60", "2000-01-15 13:45:60", "2000-01-15 13:45:00.", "2000-01-15 1", "36540"})
    EXPECT_THROW((void)formatDate(text, "dd/mm/yyyy"), QueryError) << text;
  for (const char* pattern : {"d/m/yy", "dddd", "hh:nn", "ddd"})
    EXPECT_THROW((void)formatDate("2000-01-15", pattern), QueryError) << pattern;
}

TEST_F(DateFormatTest, IsAFunctionOfTwoArgumentsInSql) {
  runSql("dates.db", "CREATE TABLE g(d DATETIME); INSERT INTO g VALUES('1990-01-15 00:00:00'), (NULL);"
                     "CREATE VIEW v AS SELECT FORMAT(d, 'yyyy') FROM g");
  EXPECT_EQ(answer("dates.db", "SELECT FORMAT(d, 'dd/mm/yyyy'), 5 FROM g"), "15/01/1990 5 .\n 5 .\n");
  EXPECT_EQ(answer("dates.db", "SELECT * FROM v"), "1990 .\n .\n");
  EXPECT_EQ(answer("dates.db", "SELECT format('%d%s', 1, 'x')"), "1x .\n"); // SQLite's own, with any other number
  EXPECT_NE(refusal("dates.db", "SELECT FORMAT('nada', 'dd/mm/yyyy')").find("'nada' is no date"), std::string::npos);
}

} // namespace
} // namespace LagomareQuery
