#pragma once

#include "support/Program.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <string>
#include <vector>

/// Runs the real programs as a user does, in a directory of the test's own whose name a shell would stumble over. After
/// each test TMPDIR must be as empty as before.
class CommandTest : public testing::Test {
protected:
  CommandTest();
  ~CommandTest() override;

  /// A project of the 2013 dialect: reservoirs 1 and 2 with links 1 and 2 to and fro, demand 11, drain 12, junction 21;
  /// the year 2000, two hydrological states. The SQL changes it.
  static std::string project(const std::string& sql = "", const std::string& name = "basin.db");
  /// The general settings of a project of the 2010 dialect, and empty tables.
  static std::string project2010(const std::string& name = "basin2010.db");

  [[nodiscard]] static std::vector<std::string> importing(std::vector<std::string> words);
  /// Runs `lagomare import` with these words.
  [[nodiscard]] static Ending import(const std::vector<std::string>& words) { return run(importing(words)); }

  /// A query executable: a shell script that may call answer "$@" to have the bundled one answer.
  static std::string executable(const std::string& script, const std::string& name = "own query");

  [[nodiscard]] static std::vector<std::string> leftovers();

private:
  std::filesystem::path outside_ = std::filesystem::current_path();
  std::filesystem::path directory_;
};
