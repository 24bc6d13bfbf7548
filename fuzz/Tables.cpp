#include "fuzz/Tables.h"

#include "fuzz/Finding.h"
#include "tools/query/Query.h"
#include "tools/query/QueryError.h"

#include <algorithm>

namespace LagomareFuzz {

using namespace LagomareQuery;

namespace {

/// Counts the rows of an answer.
class RowCount : public AnswerSink {
public:
  void write(std::string_view bytes) override {
    rows_ += static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n'));
  }
  [[nodiscard]] std::size_t rows() const { return rows_; }

private:
  std::size_t rows_ = 0;
};

std::size_t countRows(const Database& database, const std::string& query) {
  RowCount count;
  writeRows(database, query, count);
  return count.rows();
}

} // namespace

Tables tablesOf(const Database& database) {
  const Statement queries =
      prepare(database.connection.get(),
              R"(select 'select ' || group_concat(printf('"%w"', c.name), ', ') || printf(' from "%w"', t.name)
         from sqlite_master as t join pragma_table_info(t.name) as c where t.type = 'table' group by t.name)");
  Tables tables;
  while (step(queries.get())) {
    const std::string query(textColumn(queries.get(), 0));
    tables[query] = countRows(database, query);
  }
  require(!tables.empty(), "the sound file has no tables");
  return tables;
}

void requireErrorOrAllRows(const std::string& file, const Tables& tables) {
  try {
    const Database database = openDatabase(file);
    for (const auto& [query, rows] : tables)
      try {
        const std::size_t found = countRows(database, query);
        require(found == rows, std::to_string(found) + " rows instead of " + std::to_string(rows) + ": " + query);
      } catch (const QueryError&) { // of one table: the others may be whole
      }
  } catch (const QueryError&) {
  }
}

} // namespace LagomareFuzz
