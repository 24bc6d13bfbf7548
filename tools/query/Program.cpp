#include "tools/query/Program.h"

#include "tools/query/Query.h"
#include "tools/query/QueryError.h"
#include "tools/query/Session.h"
#include "tools/query/answer/AnswerFile.h"
#include "tools/query/answer/AnswerStream.h"
#include "tools/system/StandardStreams.h"
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <new>
#include <optional>
#include <system_error>

namespace LagomareQuery {

namespace {

constexpr const char* answerName = "query-result.txt";
constexpr const char* usage =
    "usage: lagomare-query DATABASE SQL FLAG\n"
    "       lagomare-query --session DATABASE\n"
    "\n"
    "Answers one SELECT from a SQLite or Access database, which it only reads. The answer goes to query-result.txt\n"
    "in the working directory: a line per row, each field followed by a blank, then a dot.\n"
    "\n"
    "  DATABASE   the file; told apart by its first bytes (SQLite, .mdb, .accdb)\n"
    "  SQL        one statement that selects, in SQLite's SQL; FORMAT(date, 'dd/mm/yyyy') is there\n"
    "  FLAG       0 or 1; changes nothing\n"
    "\n"
    "  --session  answers each line of standard input, FLAG SQL, on standard output; see the manual page\n"
    "  --help, --version\n"
    "\n"
    "example: lagomare-query project.mdb 'select NumPto, Valor from LgmVazNat' 0\n";

struct Call {
  std::string database;
  std::string sql;
};

Call parseCall(const std::vector<std::string>& words) {
  if (words.size() != 3)
    throw QueryError("three words are expected, DATABASE SQL FLAG, but " + std::to_string(words.size()) +
                     " were given; put quotes around the SQL, and see --help");
  if (words[2] != "0" && words[2] != "1")
    throw QueryError("the flag must be 0 or 1, not '" + words[2] + "'");
  return {words[0], words[1]};
}

/// The answer must not overwrite the project.
void requireOtherFile(const std::vector<std::string>& words) {
  std::error_code missing;
  if (!words.empty() && std::filesystem::equivalent(std::filesystem::u8path(words[0]), answerName, missing))
    throw QueryError(std::string("the database is the file ") + answerName + ", which the answer would overwrite");
}

/// Returns the text to print if the call asks for help or the version, otherwise null.
const char* helpFor(const std::vector<std::string>& words) {
  if (words.size() != 1)
    return nullptr;
  if (words[0] == "--help" || words[0] == "-h")
    return usage;
  return words[0] == "--version" ? "lagomare-query " LAGOMARE_VERSION "\n" : nullptr;
}

int failure(const std::string& reason) {
  std::cerr << "lagomare-query: error: " << inOneLine(reason) << '\n';
  return EXIT_FAILURE;
}

int printHelp(const char* help) {
  std::cout << help << std::flush;
  return std::cout ? EXIT_SUCCESS : failure("standard output cannot be written");
}

int answerInFile(const std::vector<std::string>& words) {
  std::optional<AnswerFile> file;
  std::string reason;
  try {
    requireOtherFile(words);
    file.emplace(answerName);
    const Call call = parseCall(words);
    writeRows(openDatabase(call.database), call.sql, *file);
    file->commit();
    return EXIT_SUCCESS;
  } catch (const std::bad_alloc&) {
    reason = "out of memory";
  } catch (const std::exception& error) {
    reason = error.what();
  }
  if (file)
    file->fail(reason);
  return failure(reason);
}

int answerInSession(const std::string& database) {
  try {
    AnswerStream answers;
    return runSession(database, std::cin, answers) ? EXIT_SUCCESS : EXIT_FAILURE;
  } catch (const LagomareTools::ReaderHasGone&) {
    LagomareTools::endAsReaderHasGone();
  } catch (const std::bad_alloc&) {
    return failure("out of memory");
  } catch (const std::exception& error) {
    return failure(error.what());
  }
}

} // namespace

int runProgram(const std::vector<std::string>& words) {
  if (const char* help = helpFor(words))
    return printHelp(help);
  if (words.size() == 2 && words[0] == "--session")
    return answerInSession(words[1]);
  return answerInFile(words);
}

} // namespace LagomareQuery
