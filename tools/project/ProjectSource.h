#pragma once

#include "access/QuerySource.h"

#include <istream>
#include <memory>
#include <string>

namespace LagomareTools {

/// Answers the queries on one project, through a query executable. Remembers the last query, for error messages.
///
/// ask() and the stream that it returns throw QueryRefused if this query was refused with a reason (others can be asked
/// after it), another Failure if the source answers no more, and Interrupted. The stream is set to pass them on. It
/// need not be read to its end.
class ProjectSource : public Lagomare::QuerySource {
public:
  [[nodiscard]] std::unique_ptr<std::istream> ask(const std::string& sql, bool flag) final;

  /// From now on keeps the answers for queries that are asked again, if the source sees one state of the project.
  virtual void keepAnswers() {}

  /// The SQL that was asked last; empty before the first query.
  [[nodiscard]] const std::string& lastSql() const { return lastSql_; }

protected:
  /// What a query executable complained of: the last line that says something. Empty if there is none.
  [[nodiscard]] static std::string lastLineOf(const std::string& complaint);

private:
  /// Runs a query.
  [[nodiscard]] virtual std::unique_ptr<std::istream> start(const std::string& sql, bool flag) = 0;

  std::string lastSql_;
};

} // namespace LagomareTools
