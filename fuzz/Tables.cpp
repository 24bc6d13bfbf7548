#include "fuzz/Tables.h"

#include "fuzz/Finding.h"
#include "tools/query/Query.h"
#include "tools/query/QueryError.h"
#include "tools/query/answer/AnswerSink.h"
#include "tools/query/sqlite/Sqlite.h"

#include <algorithm>
#include <iterator>
#include <sstream>
#include <string_view>

namespace LagomareFuzz {

using namespace LagomareQuery;

namespace {

using Rows = std::vector<std::string>;

class Answer : public AnswerSink {
public:
  void write(std::string_view bytes) override { text_ += bytes; }
  [[nodiscard]] const std::string& text() const { return text_; }

private:
  std::string text_;
};

Rows split(const std::string& text, char separator) {
  Rows parts;
  std::istringstream in(text);
  for (std::string part; std::getline(in, part, separator);)
    parts.push_back(part);
  return parts;
}

Rows sortedRows(const Database& database, const std::string& query) {
  Answer answer;
  writeRows(database, query, answer);
  Rows rows = split(answer.text(), '\n');
  std::sort(rows.begin(), rows.end());
  return rows;
}

Rows difference(const Rows& rows, const Rows& less) {
  Rows rest;
  std::set_difference(rows.begin(), rows.end(), less.begin(), less.end(), std::back_inserter(rest));
  return rest;
}

std::size_t countDifferentCells(const std::string& left, const std::string& right) {
  const Rows leftCells = split(left, ' ');
  const Rows rightCells = split(right, ' ');
  std::size_t count = 0;
  for (std::size_t cell = 0; cell < std::min(leftCells.size(), rightCells.size()); ++cell)
    count += leftCells[cell] != rightCells[cell] ? 1 : 0;
  return count;
}

/// A row that stands in the place of another one, too; or nothing.
std::string rowForAnother(const Rows& found, const Rows& sound, std::size_t changes) {
  const Rows missing = difference(sound, found);
  for (const std::string& row : difference(found, sound))
    if (std::binary_search(sound.begin(), sound.end(), row) &&
        std::none_of(missing.begin(), missing.end(),
                     [&](const auto& other) { return countDifferentCells(row, other) <= changes; }))
      return row;
  return "";
}

} // namespace

Tables tablesOf(const std::string& file) {
  const Database database = openDatabase(file);
  const Statement queries =
      prepare(database.connection.get(),
              R"(select 'select ' || group_concat(printf('"%w"', c.name), ', ') || printf(' from "%w"', t.name)
         from sqlite_master as t join pragma_table_info(t.name) as c where t.type = 'table' group by t.name)");
  Tables tables;
  while (step(queries.get())) {
    const std::string query(textColumn(queries.get(), 0));
    tables[query] = sortedRows(database, query);
  }
  require(!tables.empty(), "the sound file has no tables");
  return tables;
}

std::string missingIn(const std::string& file, const Tables& sound, std::size_t changes) {
  try {
    Database database = openDatabase(file);
    requireSound(database); // as a session does
    for (const auto& [query, rows] : sound)
      try {
        const Rows found = sortedRows(database, query);
        if (found.size() != rows.size())
          return std::to_string(found.size()) + " rows instead of " + std::to_string(rows.size()) + ": " + query;
        if (const std::string row = rowForAnother(found, rows, changes); !row.empty())
          return "a row for another: " + query + ": " + row;
      } catch (const QueryError&) { // of one table: the others may be whole
      }
  } catch (const QueryError&) {
  }
  return "";
}

} // namespace LagomareFuzz
