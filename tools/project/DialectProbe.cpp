#include "tools/project/DialectProbe.h"

#include "access/FieldError.h"
#include "access/LagomareProjectManager.h"
#include "tools/project/LastQuery.h"
#include "tools/project/QueryLauncher.h"
#include "tools/system/Failure.h"
#include "tools/system/Text.h"

namespace LagomareTools {

namespace {

enum class Finding { held, missing, silence, failure };

/// What came of asking for a table.
struct Probe {
  Finding finding;
  std::string refusal; ///< why it is not held, in the query executable's words
};

std::string without(std::string text, const std::string& part) {
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part))
    text.erase(at, part.size());
  return text;
}

/// Executables of one's own say in their own words that a table is missing, or say nothing. Some repeat the SQL in
/// any error.
Finding findingOf(const std::string& refusal, const std::string& sql, const std::string& table, bool isOwnExecutable) {
  const std::string complaint = lastQueryComplaint();
  const std::string mark = isOwnExecutable ? table : "no such table: " + table;
  if (without(refusal + ' ' + complaint, sql).find(mark) != std::string::npos)
    return Finding::missing;
  const std::string answer = firstLineOfAnswer();
  const bool isSilent = complaint.empty() && (answer.empty() || answer.find(noAnswer) != std::string::npos);
  return isOwnExecutable && isSilent ? Finding::silence : Finding::failure;
}

/// Why the count was not answered.
std::string refusalOfCount(const Inputs& inputs, const std::string& plainDatabase) {
  std::string refusal = refusalOfLastQuery(inputs, plainDatabase);
  if (!refusal.empty())
    return refusal;
  const std::string answer = firstLineOfAnswer();
  const std::string complaint = lastQueryComplaint();
  return "the query executable answered \"" + excerpt(answer) +
         "\", which is no row: a number, a blank, one field more" + (complaint.empty() ? "" : "; it says " + complaint);
}

/// The count makes one row of an empty table too.
Probe askFor(Dialect dialect, const Inputs& inputs, const std::string& plainDatabase) {
  const std::string table = settingsTableOf(dialect);
  const std::string sql = "select count(*) from " + table;
  try {
    if (!LagomareProjectManager::getInstance()->query(sql, false).empty()) {
      requireLaunched();
      return {Finding::held, ""};
    }
  } catch (const Lagomare::FieldError&) {
    // No row either.
  }
  requireLaunched();
  const std::string refusal = refusalOfCount(inputs, plainDatabase);
  return {findingOf(refusal, sql, table, inputs.isOwnExecutable), refusal};
}

std::string namesOfBoth(const char* conjunction) {
  return "the table " + settingsTableOf(Dialect::of2010) + " (dialect 2010) " + conjunction + ' ' +
         settingsTableOf(Dialect::of2013) + " (dialect 2013)";
}

} // namespace

Dialect findDialect(const Inputs& inputs, const std::string& plainDatabase) {
  const Probe of2010 = askFor(Dialect::of2010, inputs, plainDatabase);
  const Probe of2013 = askFor(Dialect::of2013, inputs, plainDatabase);
  const bool is2010 = of2010.finding == Finding::held;
  const bool is2013 = of2013.finding == Finding::held;
  for (const Probe& probe : {of2010, of2013})
    if (probe.finding == Finding::failure || (probe.finding == Finding::silence && !is2010 && !is2013))
      throw Failure(inputs.projectName + ": which it holds, " + namesOfBoth("or") +
                    ", cannot be found out: " + probe.refusal + "; --dialect says which to read");
  if (is2010 && is2013)
    throw Failure(inputs.projectName + ": holds both " + namesOfBoth("and") + "; say which to read with --dialect");
  if (!is2010 && !is2013)
    throw Failure(inputs.projectName + ": holds neither " + namesOfBoth("nor") +
                  "; check that it is the project's database and not another one" +
                  (inputs.isOwnExecutable ? " (the query executable says: " + of2013.refusal + ")" : ""));
  return is2010 ? Dialect::of2010 : Dialect::of2013;
}

} // namespace LagomareTools
