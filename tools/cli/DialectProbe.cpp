#include "tools/cli/DialectProbe.h"

#include "access/FieldError.h"
#include "access/LagomareProjectManager.h"
#include "tools/cli/Failure.h"
#include "tools/cli/LastQuery.h"
#include "tools/cli/QueryLauncher.h"
#include "tools/cli/Text.h"

namespace LagomareCli {

namespace {

/// What came of asking for a table.
enum class Finding { held, missing, silence, failure };

struct Probe {
  Finding finding;
  std::string refusal; ///< why the table is not held, as the query executable says
};

/// Executables of one's own say in their own words that a table is missing, or say nothing.
Finding findingOf(const std::string& refusal, const std::string& table, const Inputs& inputs) {
  const std::string mark = inputs.isOwnExecutable ? table : "no such table";
  if (refusal.find(mark) != std::string::npos)
    return Finding::missing;
  return inputs.isOwnExecutable && lastQueryComplaint().empty() ? Finding::silence : Finding::failure;
}

/// The count makes one row of an empty table too.
Probe probe(Dialect dialect, const Inputs& inputs, const std::string& plainDatabase) {
  const std::string table = settingsTableOf(dialect);
  try {
    const auto count = LagomareProjectManager::getInstance()->query("select count(*) from " + table, false);
    requireLaunched();
    return {count.empty() ? Finding::failure : Finding::held, "the query executable's answer to a count is empty"};
  } catch (const FieldError&) {
    const std::string refusal = refusalOfLastQuery(inputs, plainDatabase);
    if (refusal.empty())
      return {Finding::failure, "the query executable answered \"" + excerpt(firstLineOfAnswer()) +
                                    "\", which is no row: a number, a blank, one field more"};
    return {findingOf(refusal, table, inputs), refusal};
  }
}

std::string namesOfBoth(const char* conjunction) {
  return "the table " + settingsTableOf(Dialect::of2010) + " (dialect 2010) " + conjunction + ' ' +
         settingsTableOf(Dialect::of2013) + " (dialect 2013)";
}

[[noreturn]] void failUnknown(const Probe& probe, const std::string& project) {
  throw Failure(project + ": which it holds, " + namesOfBoth("or") + ", cannot be found out: " + probe.refusal);
}

} // namespace

Dialect findDialect(const Inputs& inputs, const std::string& plainDatabase) {
  const Probe probe2010 = probe(Dialect::of2010, inputs, plainDatabase);
  const Probe probe2013 = probe(Dialect::of2013, inputs, plainDatabase);
  const bool is2010 = probe2010.finding == Finding::held;
  const bool is2013 = probe2013.finding == Finding::held;
  for (const Probe& probe : {probe2010, probe2013})
    if (probe.finding == Finding::failure || (probe.finding == Finding::silence && !is2010 && !is2013))
      failUnknown(probe, inputs.projectName);
  if (is2010 && is2013)
    throw Failure(inputs.projectName + ": holds both " + namesOfBoth("and") + "; say which to read with --dialect");
  if (!is2010 && !is2013)
    throw Failure(inputs.projectName + ": holds neither " + namesOfBoth("nor") +
                  "; check that it is the project's database and not another one");
  return is2010 ? Dialect::of2010 : Dialect::of2013;
}

} // namespace LagomareCli
