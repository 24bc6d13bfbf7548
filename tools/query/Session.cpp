#include "tools/query/Session.h"

#include "tools/query/Query.h"
#include "tools/query/QueryError.h"
#include <new>

namespace LagomareQuery {

namespace {

std::string sqlOf(const std::string& line) {
  const bool hasFlag = line.size() >= 2 && (line[0] == '0' || line[0] == '1') && line[1] == ' ';
  if (!hasFlag || line.find('\0') != std::string::npos)
    throw QueryError("a query of a session is one line of text, FLAG SQL: 0 or 1, a blank, and the SQL");
  return line.substr(2);
}

/// Returns false if the database was changed.
bool answerLine(const Database& database, const std::string& line, AnswerStream& answers) {
  try {
    writeRows(database, sqlOf(line), answers);
    answers.complete();
  } catch (const DatabaseChanged& error) {
    answers.fail(error.what());
    return false;
  } catch (const QueryError& error) {
    answers.fail(error.what());
  } catch (const std::bad_alloc&) {
    answers.fail("out of memory");
  }
  return true;
}

} // namespace

bool runSession(const std::string& path, std::istream& queries, AnswerStream& answers) {
  Database database = openDatabase(path);
  requireSound(database);
  for (std::string line; std::getline(queries, line);)
    if (!answerLine(database, line, answers))
      return false;
  return true;
}

} // namespace LagomareQuery
