#include "access/Answer.h"

#include "access/FieldError.h"
#include "access/Fields.h"

#include <gmock/gmock.h>

#include <random>
#include <sstream>

using namespace Lagomare;
using namespace testing;

namespace {

/// The rows of an answer, read without a thought for speed.
QueryResult naiveRows(const std::string& text) {
  QueryResult rows;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (line.empty() || line == "\r")
      continue;
    Row row;
    std::istringstream fields(line + ' ');
    for (std::string field; std::getline(fields, field, ' ');)
      row.push_back(field);
    row.pop_back();
    if (row.empty())
      throw std::invalid_argument("stoul");
    const std::uint64_t key = std::stoul(row[0]);
    if (key > UINT32_MAX)
      throw std::out_of_range("stoul");
    rows[static_cast<std::uint32_t>(key)].push_back(row);
  }
  return rows;
}

template <typename Read>
std::string printed(Read read) {
  try {
    return PrintToString(read());
  } catch (const std::exception& error) {
    return error.what();
  }
}

QueryResult rowsOf(const std::string& text) {
  std::istringstream answer(text);
  return parseRows(answer);
}

ValueResult valuesOf(const std::string& text) {
  std::istringstream answer(text);
  return parseValues(answer);
}

void expectAsNaive(const std::string& text) {
  EXPECT_EQ(printed([&] { return rowsOf(text); }), printed([&] { return naiveRows(text); })) << PrintToString(text);
}

/// The two ways of reading agree on each id's values, and on what is wrong with them.
void expectSameValues(const std::string& text) {
  const QueryResult rows = rowsOf(text);
  auto next = rows.begin();
  for (const auto& [id, column] : valuesOf(text)) {
    ASSERT_NE(next, rows.end());
    EXPECT_EQ(id, next->first);
    ASSERT_EQ(column.size(), next->second.size()) << text;
    for (std::size_t row = 0; row < column.size(); ++row)
      EXPECT_EQ(printed([&] { return column.numberAt(row); }), printed([&] { return numberAt(next->second[row], 1); }));
    ++next;
  }
  EXPECT_EQ(next, rows.end());
}

} // namespace

TEST(AnswerTest, HoldsTheRowsOfEachIdInTheOrderOfTheFile) {
  EXPECT_EQ(rowsOf("5 a x\n10 b .\n9 .\n5  b x"),
            (QueryResult{{5, {{"5", "a"}, {"5", "", "b"}}}, {9, {{"9"}}}, {10, {{"10", "b"}}}}));
  EXPECT_EQ(rowsOf("15/01/1990 2 .\r\n\r\n\n").at(15), (std::vector<Row>{{"15/01/1990", "2"}}));
  EXPECT_EQ(rowsOf("-1 .\n").begin()->first, 4294967295U);
  EXPECT_TRUE(rowsOf("").empty());
}

TEST(AnswerTest, ThrowsForALineWithoutAnId) {
  for (const char* text : {"1 .\nx .\n", "1 .\n .\n", "1 .\n7\n", "1 .\n \n", "+ ."})
    EXPECT_THAT([text] { static_cast<void>(rowsOf(text)); }, ThrowsMessage<InvalidField>("stoul")) << text;
  for (const char* text : {"4294967296 .", "1 .\n99999999999999999999 .\n"})
    EXPECT_THAT([text] { static_cast<void>(rowsOf(text)); }, ThrowsMessage<FieldOutOfRange>("stoul")) << text;
}

TEST(AnswerTest, MayBeLargerThanTheBlocksThatAreRead) {
  std::string text;
  for (int row = 0; text.size() < 300000; ++row)
    text += std::to_string(row / 100) + " 3.5" + std::string(static_cast<std::size_t>(row % 7), '0') + " .\n";
  text += "9999 " + std::string(200000, 'x') + " .";
  for (int shift = 0; shift < 40; ++shift) { // so that blocks end anywhere in a line
    expectAsNaive(text);
    expectSameValues(text);
    text.insert(0, "\n");
  }
}

TEST(AnswerTest, IsReadAsByANaiveReader) {
  static const std::vector<std::string> pieces{"1", "2",  "10", "9",  "007",  "3.5",  "2e3", "x",    " ",       " ",
                                               " ", " .", "\n", "\n", " .\n", " .\n", "\r",  "\r\n", "\xC2\xA0"};
  std::mt19937 engine(1);
  for (int i = 0; i < 20000 && !HasFailure(); ++i) {
    std::string text;
    for (auto length = engine() % 16; length > 0; --length)
      text += pieces[engine() % pieces.size()];
    expectAsNaive(text);
    EXPECT_EQ(printed([&] { return valuesOf(text).empty(); }), printed([&] { return rowsOf(text).empty(); }));
    // Well-formed: ids in runs or not, values of all sorts, rows that lack theirs.
    text.clear();
    for (auto rows = engine() % 12; rows > 0; --rows)
      text += std::to_string(engine() % 4) + (engine() % 8 == 0 ? "" : " " + pieces[engine() % 8]) + " .\n";
    expectAsNaive(text);
    expectSameValues(text);
  }
}
