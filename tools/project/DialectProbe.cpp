#include "tools/project/DialectProbe.h"

#include "access/Answer.h"
#include "access/FieldError.h"
#include "tools/project/ExecutableSource.h"
#include "tools/project/QueryRefused.h"

namespace LagomareTools {

namespace {

enum class Finding { held, missing, silence, failure };

/// What came of asking for a table.
struct Probe {
  Finding finding;
  std::string refusal; ///< why it is not held, in the words of the query executable
};

/// The bundled executable lists the tables, also those of an Access file.
Probe askList(ProjectSource& source, const std::string& table) {
  const auto answer = source.ask("select count(*) from sqlite_master where type in ('table', 'view') and lower(name) = "
                                 "lower('" +
                                     table + "')",
                                 false);
  const QueryResult rows = Lagomare::parseRows(*answer);
  return {!rows.empty() && rows.begin()->first > 0 ? Finding::held : Finding::missing, "no such table: " + table};
}

std::string without(std::string text, const std::string& part) {
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part))
    text.erase(at, part.size());
  return text;
}

bool endsWith(const std::string& text, const std::string& end) {
  return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

/// A custom executable says in its own words that a table is missing, or says nothing. Some repeat the SQL in every
/// error. The count has one row, also for an empty table.
Probe askCount(ProjectSource& source, const std::string& table) {
  const std::string sql = "select count(*) from " + table;
  try {
    if (!Lagomare::parseRows(*source.ask(sql, false)).empty())
      return {Finding::held, ""};
    return {Finding::silence, "an empty answer to " + sql};
  } catch (const QueryRefused& refusal) {
    const std::string reason = refusal.what();
    const bool isMissing = without(reason, sql).find(table) != std::string::npos;
    return {isMissing ? Finding::missing : endsWith(reason, noReason) ? Finding::silence : Finding::failure, reason};
  } catch (const Lagomare::FieldError& error) {
    return {Finding::failure, "an answer that begins with \"" + error.text().value_or("") +
                                  "\", which is no row: a number, a blank, one field more"};
  }
}

std::string namesOfBoth(const char* conjunction) {
  return "the table " + settingsTableOf(Dialect::of2010) + " (dialect 2010) " + conjunction + ' ' +
         settingsTableOf(Dialect::of2013) + " (dialect 2013)";
}

} // namespace

Dialect findDialect(ProjectSource& source, bool isBundled, const std::string& projectName) {
  const auto ask = isBundled ? askList : askCount;
  const Probe of2010 = ask(source, settingsTableOf(Dialect::of2010));
  const Probe of2013 = ask(source, settingsTableOf(Dialect::of2013));
  const bool is2010 = of2010.finding == Finding::held;
  const bool is2013 = of2013.finding == Finding::held;
  for (const Probe& probe : {of2010, of2013})
    if (probe.finding == Finding::failure || (probe.finding == Finding::silence && !is2010 && !is2013))
      throw Failure(projectName + ": cannot find out whether it holds " + namesOfBoth("or") + ": " + probe.refusal +
                    "; say which to read with --dialect");
  if (is2010 && is2013)
    throw Failure(projectName + ": holds both " + namesOfBoth("and") + "; say which to read with --dialect");
  if (!is2010 && !is2013)
    throw Failure(projectName + ": holds neither " + namesOfBoth("nor") +
                  "; check that it is the project's database and not another one" +
                  (isBundled ? "" : " (the query executable says: " + of2013.refusal + ")"));
  return is2010 ? Dialect::of2010 : Dialect::of2013;
}

} // namespace LagomareTools
