#pragma once

#include "bench/plain/PlainImport.h"
#include "bench/plain/PlainRows.h"
#include "model/Calendar.h"
#include "model/Serie.h"
#include "tools/query/Database.h"
#include "tools/query/sqlite/Sqlite.h"

#include <string>
#include <vector>

namespace Plain {

/// The library's own series.
class DenseSerie {
public:
  void lay(const std::vector<double>& values, const Months& months);
  void fill(double value, const Months& months);
  [[nodiscard]] std::vector<double> getValues(const Months& months) const;

private:
  ::Serie serie_{::Interval(), NaturalAffluentFlow(), M3S()};
};

/// Reads the database in this process, without any text of numbers: the bound of what an import can reach.
class InProcess {
public:
  using Serie = DenseSerie;

  explicit InProcess(const std::string& database)
      : connection_(LagomareQuery::openConnection(database, SQLITE_OPEN_READONLY)) {
    LagomareQuery::prepareForQueries(connection_.get());
  }

  [[nodiscard]] Rows rows(const std::string& sql) const;

  /// The rows of an id must follow each other.
  template <typename Visit>
  void forEachSeries(const std::string& sql, Visit visit) const {
    const auto statement = LagomareQuery::prepare(connection_.get(), sql);
    std::vector<double> values;
    unsigned id = 0;
    while (LagomareQuery::step(statement.get())) {
      const auto next = static_cast<unsigned>(sqlite3_column_int64(statement.get(), 0));
      if (next != id && !values.empty()) {
        visit(id, values);
        values.clear();
      }
      id = next;
      values.push_back(sqlite3_column_double(statement.get(), 1));
    }
    if (!values.empty())
      visit(id, values);
  }

private:
  LagomareQuery::Connection connection_;
};

} // namespace Plain
