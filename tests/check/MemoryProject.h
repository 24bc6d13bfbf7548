#pragma once

#include "access/QuerySource.h"
#include "loader/SceneryProjectManagerRet.h"
#include "tools/check/Check.h"
#include "tools/check/result/CheckResult.h"
#include "tools/project/Dialect.h"
#include "tools/query/Database.h"
#include "tools/query/sqlite/Sqlite.h"

#include <istream>
#include <memory>
#include <string>
#include <vector>

/// A project in memory that answers as the bundled query executable does.
class MemoryProject : public Lagomare::QuerySource {
public:
  /// Runs the SQL that makes the project. Throws where it is wrong.
  MemoryProject(LagomareTools::Dialect dialect, const std::string& sql);

  [[nodiscard]] std::unique_ptr<std::istream> ask(const std::string& sql, bool flag) override;

  /// Runs SQL; what fails is left out.
  void tryChange(const std::string& sql) {
    sqlite3_exec(database_.connection.get(), sql.c_str(), nullptr, nullptr, nullptr);
  }
  /// From now on queries with this text in them are refused.
  void refuse(const std::string& part) { refused_ = part; }

  [[nodiscard]] LagomareTools::CheckResult check() { return LagomareTools::checkProject(*this, dialect_); }
  /// Throws what the library throws.
  [[nodiscard]] SceneryProjectManagerRet import();
  [[nodiscard]] LagomareTools::Dialect dialect() const { return dialect_; }

private:
  LagomareTools::Dialect dialect_;
  LagomareQuery::Database database_;
  std::string refused_;
};

/// SQL of a project with nothing to find: one year from January 2000 on, two states, the reservoirs 1 and 2, the demand
/// 3, the junction 4, and the links 11 (1 to 4), 12 (4 to 2) and 13 (2 to 3). Every value is positive and not 1.
[[nodiscard]] std::string soundProject(LagomareTools::Dialect dialect);

/// The codes among the faults, each once, in their order.
[[nodiscard]] std::vector<std::string> codesOf(const LagomareTools::CheckResult& result);

/// An error was found exactly if the import does not succeed, and each row not taken stands in one warning. `what` is
/// for the test's message.
void expectFitsImport(MemoryProject& project, const LagomareTools::CheckResult& result, const std::string& what);
