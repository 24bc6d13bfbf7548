#include "tests/query/QueryTest.h"

#include "tools/query/Program.h"
#include "tools/query/sqlite/Sqlite.h"
#include <fstream>
#include <iterator>
#include <regex>
#include <sys/wait.h>
#include <unistd.h>

namespace LagomareQuery {

namespace fs = std::filesystem;

std::string contentOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

void writeFile(const fs::path& file, const std::string& content) { std::ofstream(file, std::ios::binary) << content; }

void runSql(const std::string& database, const std::string& sql) {
  const Connection connection = openConnection(database, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  execute(connection.get(), "PRAGMA synchronous = OFF");
  ASSERT_EQ(sqlite3_exec(connection.get(), sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK)
      << sqlite3_errmsg(connection.get());
}

int statusOfChild(const std::function<void()>& body) {
  const pid_t child = fork();
  if (child == 0) {
    body();
    _exit(0);
  }
  int status = -1;
  waitpid(child, &status, 0);
  return status;
}

QueryTest::QueryTest() {
  std::string name = fs::temp_directory_path() / "lagomare query'$test-XXXXXX";
  directory_ = mkdtemp(name.data());
  fs::permissions(directory_, fs::perms::all);
  fs::current_path(directory_);
}

QueryTest::~QueryTest() {
  fs::current_path(directory_.parent_path());
  fs::remove_all(directory_);
}

std::string QueryTest::answer(const std::string& database, const std::string& sql) {
  testing::internal::CaptureStderr();
  const int exitCode = runProgram({database, sql, "0"});
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(exitCode, 0) << sql;
  return contentOf("query-result.txt");
}

std::string QueryTest::refusal(const std::vector<std::string>& words) {
  testing::internal::CaptureStderr();
  EXPECT_EQ(runProgram(words), 1);
  const std::string errors = testing::internal::GetCapturedStderr();
  const std::string line = contentOf("query-result.txt");
  std::smatch parts;
  EXPECT_TRUE(std::regex_match(line, parts, std::regex("error: ([^\n]+) \\.\n"))) << line;
  EXPECT_EQ(errors, "lagomare-query: error: " + parts.str(1) + "\n");
  return parts.str(1);
}

std::string QueryTest::refusal(const std::string& database, const std::string& sql) {
  return refusal({database, sql, "1"});
}

} // namespace LagomareQuery
