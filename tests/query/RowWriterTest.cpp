#include "tests/query/QueryTest.h"
#include "tools/query/answer/NumberText.h"
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <utility>

namespace LagomareQuery {
namespace {

using RowWriterTest = QueryTest;

TEST_F(RowWriterTest, NumbersAreWrittenAsTheReaderTakesThem) {
  runSql("numbers.db", "CREATE TABLE t(v)");
  const std::pair<const char*, const char*> cases[] = {
      {"-9223372036854775808", "-9223372036854775808"},
      {"100000.0", "100000"},
      {"-0.0", "0"},
      {"9.1e18", "9100000000000000000"},
      {"9.3e18", "9300000000000000000"},
      {"1e22", "10000000000000000000000"},
      {"0.1", "0.1"},
      {"-0.0001", "-0.0001"},
      {"-12.50", "-12.5"},
      {"1234567890.12345", "1234567890.12345"},
      {"6e-5", "0.00006"},
      {"1e-10", "0.0000000001"},
      {"4.9e-324", "0"},
      {"-2.0e-308", "0"},
      {"9e999", "inf"},
      {"-9e999", "-inf"},
      {"NULL", ""},
  };
  for (const auto& [literal, field] : cases)
    EXPECT_EQ(answer("numbers.db", std::string("SELECT 1, ") + literal), std::string("1 ") + field + " .\n");
}

TEST_F(RowWriterTest, TextStaysOneField) {
  runSql("texts.db", "CREATE TABLE t(v)");
  EXPECT_EQ(answer("texts.db", "SELECT 7, 'Açude Velho', '', x'00FFa0', char(9,10,13,31,127,133,160) || '日本 €😀'"),
            "7 Açude\u00A0Velho  00FFA0 \u00A0\u00A0\u00A0\u00A0\u00A0\u00A0\u00A0日本\u00A0€😀 .\n");
  // A stray lead byte, an overlong blank, a surrogate, a code beyond the last one, a cut end: each byte by itself.
  EXPECT_EQ(answer("texts.db", "SELECT CAST(x'61C362C0A0EDA080F4908080E282' AS TEXT)"),
            "a\uFFFDb\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD .\n");
}

TEST_F(RowWriterTest, LongValuesAndManyRowsComeWhole) {
  runSql("long.db", "CREATE TABLE t(id INTEGER, text TEXT, bytes BLOB);"
                    "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 6)"
                    "INSERT INTO t SELECT i, replace(hex(zeroblob(i * 12000)), '0', 'é '), zeroblob(i * 40000) FROM n");
  std::string expected;
  for (int i = 1; i <= 6; ++i) {
    expected += std::to_string(i) + " ";
    for (int j = 0; j < i * 24000; ++j)
      expected += "é\u00A0";
    expected += " " + std::string(static_cast<std::size_t>(i) * 80000, '0') + " .\n";
  }
  EXPECT_TRUE(answer("long.db", "SELECT * FROM t") == expected);
}

TEST_F(RowWriterTest, TheLongestNumbersFit) {
  runSql("long.db", "CREATE TABLE t(v)");
  const std::string small = "-0." + std::string(307, '0') + "22250738585072014";
  char largest[numberRoom] = {};
  std::snprintf(largest, sizeof largest, "%.0f", std::numeric_limits<double>::max());
  std::string sql = "SELECT 1.7976931348623157e308";
  std::string expected = largest;
  for (int i = 0; i < 1999; ++i) {
    sql += ", -2.2250738585072014e-308";
    expected += " " + small;
  }
  EXPECT_TRUE(answer("long.db", sql) == expected + " .\n");
}

TEST_F(RowWriterTest, EveryDoubleReadsBackFromATextAsShortAsAny) {
  std::mt19937_64 random(1);
  for (int i = 0; i < 300000; ++i) {
    double value = static_cast<double>(static_cast<std::int64_t>(random()) >> (random() % 64)) / std::pow(10, i % 7);
    if (i % 3 == 0) {
      const std::uint64_t bits = random();
      std::memcpy(&value, &bits, sizeof value);
    }
    if (!std::isnormal(value))
      continue;
    char text[numberRoom + 1] = {};
    char shortest[numberRoom + 1] = {};
    *writeNumber(text, value) = '\0';
    *std::to_chars(shortest, shortest + numberRoom, value, std::chars_format::fixed).ptr = '\0';
    ASSERT_EQ(std::strtod(text, nullptr), value) << text;
    ASSERT_EQ(std::strspn(text, "-.0123456789"), std::strlen(shortest)) << text;
  }
}

} // namespace
} // namespace LagomareQuery
