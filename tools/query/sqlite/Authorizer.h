#pragma once

#include "tools/query/sqlite/Select.h"

#include <set>
#include <string>

namespace LagomareQuery {

/// While this object lives, the connection compiles only statements that read.
class Authorizer {
public:
  Authorizer(sqlite3* connection, TableAccess access);
  ~Authorizer();
  Authorizer(const Authorizer&) = delete;
  Authorizer& operator=(const Authorizer&) = delete;

  /// Why a statement was refused; empty if none was.
  [[nodiscard]] const std::string& refusal() const { return refusal_; }

  /// The tables of the main schema that statements read, including SQLite's built-in ones.
  [[nodiscard]] const std::set<std::string>& tables() const { return tables_; }

  [[nodiscard]] bool readsRowidOfView() const { return readsRowidOfView_; }

private:
  static int decide(void* self, int action, const char* first, const char* second, const char* schema,
                    const char* view);
  [[nodiscard]] static std::string refusalOf(int action, const std::string& table, const std::string& function);
  [[nodiscard]] std::string refusalOfReading(const std::string& table, const std::string& column,
                                             const std::string& schema, const std::string& view) const;

  sqlite3* connection_;
  TableAccess access_;
  std::string refusal_;
  std::set<std::string> tables_;
  bool readsRowidOfView_ = false;
};

} // namespace LagomareQuery
