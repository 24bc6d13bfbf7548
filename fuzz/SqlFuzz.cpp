// Whatever SQL a session is asked, it writes nothing, opens no other file, ends each answer with an end line, and
// answers the next query as if nothing had been. Each line of the input is a query, asked of a SQLite and of an Access
// file.

#include "fuzz/Finding.h"
#include "fuzz/Workplace.h"
#include "tools/query/QueryError.h"
#include "tools/query/Session.h"
#include "tools/query/answer/AnswerStream.h"
#include "tools/query/sqlite/Sqlite.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>

using namespace LagomareFuzz;
using namespace LagomareQuery;

namespace fs = std::filesystem;

namespace {

/// Steps of SQLite's machine for all queries of an input: enough for many rows, not for an endless recursion.
constexpr int mostSteps = 50;
constexpr int stepsPerCall = 1000;
int steps = 0;

/// The file that may be opened, to be read.
std::string permitted;

/// SQLite's own file system, which opens only what it may.
int openPermitted(sqlite3_vfs* vfs, const char* name, sqlite3_file* file, int flags, int* outFlags) {
  const bool isTemporary = name == nullptr || (flags & (SQLITE_OPEN_TEMP_DB | SQLITE_OPEN_TEMP_JOURNAL |
                                                        SQLITE_OPEN_TRANSIENT_DB | SQLITE_OPEN_SUBJOURNAL)) != 0;
  require(isTemporary || (name == permitted && (flags & SQLITE_OPEN_READONLY) != 0),
          std::string("opens ") + (name == nullptr ? "a file" : name));
  auto* const own = static_cast<sqlite3_vfs*>(vfs->pAppData);
  return own->xOpen(own, name, file, flags, outFlags);
}

/// The query executable takes the limit away with its own when it has checked the pages, so each query gets it anew.
int beginStatement(unsigned /*event*/, void* connection, void* statement, void* /*sql*/) {
  const std::string_view sql = sqlite3_sql(static_cast<sqlite3_stmt*>(statement));
  if (sql.substr(0, 6) != "PRAGMA")
    sqlite3_progress_handler(
        static_cast<sqlite3*>(connection), stepsPerCall, [](void*) { return ++steps > mostSteps ? 1 : 0; }, nullptr);
  return 0;
}

int setLimits(sqlite3* connection, const char** /*error*/, const sqlite3_api_routines* /*unused*/) {
  constexpr int longestText = 1000; // bytes
  sqlite3_limit(connection, SQLITE_LIMIT_LENGTH, longestText);
  return sqlite3_trace_v2(connection, SQLITE_TRACE_STMT, beginStatement, connection);
}

void setUpSqlite() {
  static sqlite3_vfs vfs = *sqlite3_vfs_find(nullptr);
  vfs.pAppData = sqlite3_vfs_find(nullptr);
  vfs.zName = "fuzz";
  vfs.xOpen = openPermitted;
  require(sqlite3_vfs_register(&vfs, 1) == SQLITE_OK, "no file system for SQLite");
  sqlite3_hard_heap_limit64(64 << 20);
  sqlite3_auto_extension(reinterpret_cast<void (*)()>(setLimits));
}

struct Project {
  fs::path file;
  std::string content;
  std::string lastQuery;
  std::string lastAnswer;
};

/// Keeps the answers instead of printing them.
class Answers : public AnswerStream {
public:
  void write(std::string_view bytes) override { text_ += bytes; }
  [[nodiscard]] const std::string& text() const { return text_; }

private:
  std::string text_;
};

std::string sessionOf(const fs::path& file, const std::string& queries) {
  steps = 0;
  permitted = file;
  Answers answers;
  std::istringstream lines(queries);
  require(runSession(file, lines, answers), "the session ends");
  return answers.text();
}

Project makeProject(const std::string& name, const std::string& content, const std::string& query) {
  const fs::path file = workplace() / name;
  writeFile(file, content);
  return {file, content, query, sessionOf(file, query)};
}

std::string sqliteContent() {
  const fs::path file = workplace() / "made.db";
  const Connection connection = openConnection(file.string(), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  require(sqlite3_exec(connection.get(), R"(
            create table Vazao (Pto INTEGER, Data TEXT, U REAL);
            create index VazaoPto on Vazao (Pto, U);
            insert into Vazao values (2, '2000-01-15', 3.5), (1, '2000-02-15', 0.25), (2, '2000-03-15', -1);
            create table Chave (Id TEXT PRIMARY KEY, rowid INTEGER) without rowid;
            insert into Chave values ('b', 1), ('a', 2);
            create view Soma as select Pto, sum(U) as U from Vazao group by Pto;)",
                       nullptr, nullptr, nullptr) == SQLITE_OK,
          sqlite3_errmsg(connection.get()));
  return contentOf(file);
}

std::array<Project, 2> makeProjects() {
  const std::string sqlite = sqliteContent();
  fs::remove(workplace() / "made.db");
  setUpSqlite();
  return {makeProject("sqlite.db", sqlite, "0 select Pto, U from Vazao"),
          makeProject("access.mdb", contentOf(LAGOMARE_FUZZ_SAMPLES "/jet3.mdb"), "0 select * from \"Nós\"")};
}

std::size_t countFiles() {
  return static_cast<std::size_t>(std::distance(fs::directory_iterator(workplace()), fs::directory_iterator()));
}

bool endsWith(const std::string& text, const std::string& end) {
  return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::array<Project, 2> projects = makeProjects();
  static const std::size_t files = countFiles();
  std::istringstream lines(std::string(reinterpret_cast<const char*>(data), size));
  std::string queries;
  std::ptrdiff_t count = 1;
  for (std::string line; std::getline(lines, line); ++count)
    queries += "1 " + line + '\n';
  for (const Project& project : projects) {
    const std::string answer = sessionOf(project.file, queries + project.lastQuery);
    require(std::count(answer.begin(), answer.end(), '\4') == count, "an answer without an end line: " + answer);
    require(steps > mostSteps || endsWith(answer, project.lastAnswer), "another answer than before: " + answer);
    require(contentOf(project.file) == project.content, "the file is changed");
  }
  require(countFiles() == files, "a file is left behind");
  return 0;
}
