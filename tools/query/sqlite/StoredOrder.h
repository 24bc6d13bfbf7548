#pragma once

#include "tools/query/sqlite/Select.h"

namespace LagomareQuery {

/// A selecting statement whose tables' rows come in stored order, by rowid, whatever indexes exist: row order carries
/// meaning, and an index that covers a query would shuffle it. What the statement itself orders, groups or makes
/// distinct comes as it says.
///
/// Mostly the statement is compiled as it is. Where SQLite would use an index, temporary views of the tables' names
/// shadow the tables, each selecting its table's rows by rowid, without indexes; the views go with this object.
class StoredOrderQuery {
public:
  /// Compiles the one statement in `sql`. Throws QueryError. One at a time on a connection, which must outlive it.
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
  std::unique_ptr<sqlite3, DropShadows> shadows_; // goes after the statement that reads them
  Select select_;
};

} // namespace LagomareQuery
