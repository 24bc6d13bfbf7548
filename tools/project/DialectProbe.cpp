#include "tools/project/DialectProbe.h"

#include "access/Answer.h"
#include "access/FieldError.h"
#include "tools/project/QueryRefused.h"

namespace LagomareTools {

namespace {

/// Whether the database holds a table. The bundled executable lists its tables, those of an Access file too. A custom
/// one counts the rows, in one row also for an empty table; its reason for not answering is added to `reasons`.
bool isHeld(ProjectSource& source, const std::string& table, bool isBundled, std::string& reasons) {
  const std::string listed = "sqlite_master where type in ('table', 'view') and lower(name) = lower('" + table + "')";
  try {
    const auto rows = Lagomare::parseRows(*source.ask("select count(*) from " + (isBundled ? listed : table), false));
    return !rows.empty() && (!isBundled || rows.begin()->first > 0);
  } catch (const QueryRefused& refusal) {
    if (isBundled)
      throw; // the file cannot be read at all
    reasons += std::string("; ") + refusal.what();
  } catch (const Lagomare::FieldError& error) {
    reasons +=
        "; it answered \"" + error.text().value_or("") + "\", which is no row: a number, a blank, one field more";
  }
  return false;
}

std::string namesOfBoth(const char* conjunction) {
  return "the table " + settingsTableOf(Dialect::of2010) + " (dialect 2010) " + conjunction + ' ' +
         settingsTableOf(Dialect::of2013) + " (dialect 2013)";
}

} // namespace

Dialect findDialect(ProjectSource& source, bool isBundled, const std::string& projectName) {
  std::string reasons;
  const bool is2010 = isHeld(source, settingsTableOf(Dialect::of2010), isBundled, reasons);
  const bool is2013 = isHeld(source, settingsTableOf(Dialect::of2013), isBundled, reasons);
  if (is2010 && is2013)
    throw Failure(projectName + ": holds both " + namesOfBoth("and") + "; say which to read with --dialect");
  if (!is2010 && !is2013)
    throw Failure(projectName + ": holds neither " + namesOfBoth("nor") +
                  "; check that it is the project's database and not another one" +
                  (reasons.empty() ? "" : ". The query executable says" + reasons.replace(0, 1, ":")));
  return is2010 ? Dialect::of2010 : Dialect::of2013;
}

} // namespace LagomareTools
