#include "tools/query/Program.h"

#include "tests/query/QueryTest.h"

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace LagomareQuery {
namespace {

using ProgramTest = QueryTest;

TEST_F(ProgramTest, TheCallMustBeWhole) {
  const std::vector<std::vector<std::string>> calls = {
      {}, {"a.db"}, {"a.db", "SELECT 1"}, {"a.db", "SELECT", "1", "0"}, {"--help", "x"}, {"a.db", "SELECT 1", "2"}};
  for (const auto& words : calls) {
    writeFile("query-result.txt", "1 2 .\n");
    EXPECT_NE(refusal(words), "");
  }
}

TEST_F(ProgramTest, HelpAndVersionLeaveTheAnswerAlone) {
  writeFile("query-result.txt", "1 2 .\n");
  for (const auto& [word, expected] : {std::pair("--help", "usage: "), std::pair("--version", "lagomare-query ")}) {
    testing::internal::CaptureStdout();
    EXPECT_EQ(runProgram({word}), 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout().rfind(expected, 0), 0u);
  }
  EXPECT_EQ(contentOf("query-result.txt"), "1 2 .\n");
}

TEST_F(ProgramTest, TheFlagChangesNothing) {
  runSql("--version", "CREATE TABLE t(a); INSERT INTO t VALUES(1)"); // three words are never options
  for (const char* flag : {"0", "1"}) {
    EXPECT_EQ(runProgram({"--version", "SELECT a FROM t", flag}), 0);
    EXPECT_EQ(contentOf("query-result.txt"), "1 .\n");
  }
}

TEST_F(ProgramTest, ErrorsSayWhyAFileIsNoDatabase) {
  std::filesystem::create_directory("folder");
  writeFile("empty.db", "");
  writeFile("text.db", "1 2 3\n");
  writeFile("torn.db", std::string("SQLite format 3\0", 16) + "and then nothing");
  EXPECT_NE(refusal("nowhere.db", "SELECT 1").find("'nowhere.db' does not exist"), std::string::npos);
  EXPECT_NE(refusal("a\nb.db", "SELECT 1").find("'a b.db' does not exist"), std::string::npos);
  EXPECT_NE(refusal("folder", "SELECT 1").find("is a folder"), std::string::npos);
  EXPECT_NE(refusal("/dev/null", "SELECT 1").find("is no ordinary file"), std::string::npos);
  EXPECT_NE(refusal("empty.db", "SELECT 1").find("is empty"), std::string::npos);
  EXPECT_NE(refusal("text.db", "SELECT 1").find("neither a SQLite nor an Access database"), std::string::npos);
  EXPECT_NE(refusal("torn.db", "SELECT 1").find("is damaged"), std::string::npos);
}

TEST_F(ProgramTest, TheDatabaseIsNotOverwrittenByItsAnswer) {
  runSql("query-result.txt", "CREATE TABLE t(a)");
  const std::string before = contentOf("query-result.txt");
  testing::internal::CaptureStderr();
  EXPECT_EQ(runProgram({"query-result.txt", "SELECT 1", "0"}), 1);
  EXPECT_NE(testing::internal::GetCapturedStderr().find("would overwrite"), std::string::npos);
  EXPECT_EQ(contentOf("query-result.txt"), before);
}

} // namespace
} // namespace LagomareQuery
