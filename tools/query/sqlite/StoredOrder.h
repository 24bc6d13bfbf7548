#pragma once

#include "tools/query/sqlite/Select.h"

#include <memory>
#include <set>
#include <string>

namespace LagomareQuery {

/// A compiled query that reads each table in stored order, by rowid. The order of rows has a meaning for the importer,
/// and SQLite would return them in the order of an index if that index has all columns of the query. ORDER BY, GROUP BY
/// and DISTINCT in the query work as usual.
///
/// A query for which SQLite uses no index is compiled as it is. Otherwise each table is hidden by a temporary view with
/// the same name, which selects the table's rows by rowid and without indexes. The views are dropped with this object.
class StoredOrderQuery {
public:
  /// Compiles the one statement in `sql`. A connection, which must outlive the query, can have one at a time. Throws
  /// QueryError.
  StoredOrderQuery(sqlite3* connection, const std::string& sql);

  [[nodiscard]] sqlite3_stmt* statement() const { return select_.statement.get(); }

  /// The tables of the main schema that the statement reads.
  [[nodiscard]] const std::set<std::string>& tables() const { return select_.tables; }

private:
  enum class Rowid { hidden, asColumn };
  void prepareWithShadows(sqlite3* connection, const std::string& sql, Rowid rowid);

  struct DropShadows {
    void operator()(sqlite3* connection) const;
  };
  std::unique_ptr<sqlite3, DropShadows> shadows_; // destroyed after the statement that reads the views
  Select select_;
};

} // namespace LagomareQuery
