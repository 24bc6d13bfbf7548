#pragma once

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace LagomareQuery {

[[nodiscard]] std::string contentOf(const std::filesystem::path& file);
void writeFile(const std::filesystem::path& file, const std::string& content);

/// Makes or extends a SQLite database.
void runSql(const std::string& database, const std::string& sql);

/// Runs `body` in a process of its own and returns how that ended, as waitpid() tells it.
[[nodiscard]] int statusOfChild(const std::function<void()>& body);

/// Each test in a working directory of its own, which goes with it.
class QueryTest : public testing::Test {
protected:
  QueryTest();
  ~QueryTest() override;

  /// The answer to a query that must succeed.
  [[nodiscard]] static std::string answer(const std::string& database, const std::string& sql);

  /// The reason in the one error line that a call must leave, and print.
  [[nodiscard]] static std::string refusal(const std::vector<std::string>& words);
  [[nodiscard]] static std::string refusal(const std::string& database, const std::string& sql);

private:
  std::filesystem::path directory_;
};

} // namespace LagomareQuery
