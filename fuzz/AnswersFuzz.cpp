// Answers are read as by a plain reader, whatever the size of the blocks that they are read in. The first byte of the
// input says how large the blocks are, the rest is the answer.

#include "access/Answer.h"
#include "access/Fields.h"
#include "access/QueryResult.h"
#include "access/ValueColumn.h"
#include "access/ValueResult.h"
#include "fuzz/Finding.h"

#include <cstdint>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

using namespace Lagomare;
using namespace LagomareFuzz;

namespace {

QueryResult plainRows(const std::string& text) {
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
    rows[unsignedAt(row, 0)].push_back(row);
  }
  return rows;
}

std::string shown(const QueryResult& result) {
  std::ostringstream out;
  for (const auto& [id, rows] : result)
    for (const Row& row : rows) {
      out << id << ':';
      for (const auto& field : row)
        out << ' ' << field;
      out << '\n';
    }
  return out.str();
}

/// The value of each row, or the error that it gives.
template <typename Result, typename NumberAt>
std::string shownValues(const Result& result, NumberAt numberOf) {
  std::ostringstream out;
  for (const auto& entry : result)
    for (std::size_t row = 0; row < entry.second.size(); ++row)
      out << entry.first << ' ' << outcomeOf([&] { return numberOf(entry.second, row); }, exactText) << '\n';
  return out.str();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0)
    return 0;
  const std::size_t blockSize = data[0] + std::size_t{1};
  const std::string text(reinterpret_cast<const char*>(data + 1), size - 1);
  const std::string expected = outcomeOf([&] { return plainRows(text); }, shown);
  std::istringstream rows(text);
  require(outcomeOf([&] { return parseRows(rows, blockSize); }, shown) == expected, "other rows than\n" + expected);

  const auto fromRow = [](const std::vector<Row>& all, std::size_t row) { return numberAt(all[row], 1); };
  const auto fromColumn = [](const ValueColumn& column, std::size_t row) { return column.numberAt(row); };
  const std::string expectedValues =
      outcomeOf([&] { return plainRows(text); }, [&](const QueryResult& all) { return shownValues(all, fromRow); });
  std::istringstream values(text);
  const std::string foundValues = outcomeOf([&] { return parseValues(values, blockSize); },
                                            [&](const ValueResult& all) { return shownValues(all, fromColumn); });
  require(foundValues == expectedValues, "other values than\n" + expectedValues);
  return 0;
}
