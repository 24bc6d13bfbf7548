#include "access/Answer.h"

#include "access/FieldError.h"
#include "access/Fields.h"

#include <cstdint>
#include <exception>
#include <gmock/gmock.h>
#include <stdexcept>
#include <string>
#include <vector>

#include <random>
#include <sstream>

using namespace Lagomare;
using namespace testing;

namespace {

/// The rows of an answer, read without a thought for speed, each with its number as one more field.
QueryResult naiveRows(const std::string& text, std::size_t& number) {
  QueryResult rows;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (line.empty() || line == "\r")
      continue;
    ++number;
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
    row.push_back(std::to_string(number));
    rows[static_cast<std::uint32_t>(key)].push_back(row);
  }
  return rows;
}

template <typename Read>
std::string printed(Read read) {
  try {
    return PrintToString(read());
  } catch (const FieldError& error) {
    return dynamic_cast<const std::exception&>(error).what() + (" in row " + std::to_string(error.row().value_or(0)));
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

/// With its number as one more field of each row.
QueryResult numbered(QueryResult rows) {
  for (auto& [id, rowsOfId] : rows)
    for (std::size_t index = 0; index < rowsOfId.size(); ++index)
      rowsOfId[index].push_back(std::to_string(rows.numberOf(id, index).value_or(0)));
  return rows;
}

void expectAsNaive(const std::string& text) {
  const std::string ours = printed([&] { return numbered(rowsOf(text)); });
  std::size_t number = 0;
  try {
    EXPECT_EQ(ours, PrintToString(naiveRows(text, number))) << PrintToString(text);
  } catch (const std::exception& error) {
    EXPECT_EQ(ours, error.what() + (" in row " + std::to_string(number))) << PrintToString(text);
  }
}

/// The two ways of reading agree on each id's values, and on what is wrong with them.
void expectSameValues(const std::string& text) {
  const QueryResult rows = rowsOf(text);
  auto next = rows.begin();
  for (const auto& entry : valuesOf(text)) {
    const auto id = entry.first;
    const auto& column = entry.second;
    ASSERT_NE(next, rows.end());
    EXPECT_EQ(id, next->first);
    ASSERT_EQ(column.size(), next->second.size()) << text;
    for (std::size_t row = 0; row < column.size(); ++row)
      EXPECT_EQ(printed([&] { return column.numberAt(row); }),
                printed([&] { return inRow(rows, id, row, [&] { return numberAt(next->second[row], 1); }); }));
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
  const auto read = [](const char* line) { static_cast<void>(rowsOf(std::string("\n1 .\r\n\r\n") + line)); };
  const auto inRow2 = Property(&FieldError::row, Eq(2U));
  for (const char* line : {"x .\n", " .\n", "7\n", " \n", "+ ."})
    EXPECT_THAT([&] { read(line); },
                Throws<InvalidField>(AllOf(Property(&InvalidField::what, StrEq("stoul")), inRow2)));
  for (const char* line : {"4294967296 .", "99999999999999999999 .\n"})
    EXPECT_THAT([&] { read(line); }, Throws<FieldOutOfRange>(inRow2)) << line;
}

TEST(AnswerTest, MayBeLargerThanTheBlocksThatAreRead) {
  std::string text;
  for (int row = 0; text.size() < 300000; ++row)
    text += std::to_string(row / 100) + " 3.5" + std::string(static_cast<std::size_t>(row % 7), '0') + " .\n";
  text += "9999 " + std::string(200000, 'x') + " .";
  for (int shift = 0; shift < 16; ++shift) { // so that blocks end anywhere in a line
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
