#include "tools/cli/DialectProbe.h"

#include "access/FieldError.h"
#include "access/LagomareProjectManager.h"
#include "tools/cli/Failure.h"
#include "tools/cli/LastQuery.h"
#include "tools/cli/Text.h"

namespace LagomareCli {

namespace {

struct Probe {
  bool isHeld;
  std::string refusal; ///< why not, as the query executable says
};

/// The count makes one row of an empty table too.
Probe probe(Dialect dialect, const Inputs& inputs, const std::string& plainDatabase) {
  try {
    const auto count =
        LagomareProjectManager::getInstance()->query("select count(*) from " + settingsTableOf(dialect), false);
    requireLaunched();
    return {!count.empty(), "the query executable's answer to a count is empty"};
  } catch (const FieldError&) {
    const std::string refusal = refusalOfLastQuery(inputs, plainDatabase);
    return {false, refusal.empty() ? "the query executable answered \"" + excerpt(firstLineOfAnswer()) +
                                         "\", which is no row: a number, a blank, one field more"
                                   : refusal};
  }
}

std::string namesOfBoth(const char* conjunction) {
  return "the table " + settingsTableOf(Dialect::of2010) + " (dialect 2010) " + conjunction + ' ' +
         settingsTableOf(Dialect::of2013) + " (dialect 2013)";
}

bool namesTable(const Probe& probe, Dialect dialect) {
  return probe.refusal.find(settingsTableOf(dialect)) != std::string::npos;
}

[[noreturn]] void failWithout(const Probe& probe2010, const Probe& probe2013, const std::string& project) {
  if (namesTable(probe2010, Dialect::of2010) && namesTable(probe2013, Dialect::of2013))
    throw Failure(project + ": holds neither " + namesOfBoth("nor") +
                  "; check that it is the project's database and not another one");
  const Probe& telling = namesTable(probe2010, Dialect::of2010) ? probe2013 : probe2010;
  throw Failure(project + ": neither " + namesOfBoth("nor") + " can be read: " + telling.refusal);
}

} // namespace

Dialect findDialect(const Inputs& inputs, const std::string& plainDatabase) {
  const Probe probe2010 = probe(Dialect::of2010, inputs, plainDatabase);
  const Probe probe2013 = probe(Dialect::of2013, inputs, plainDatabase);
  if (probe2010.isHeld && probe2013.isHeld)
    throw Failure(inputs.projectName + ": holds both " + namesOfBoth("and") + "; say which to read with --dialect");
  if (!probe2010.isHeld && !probe2013.isHeld)
    failWithout(probe2010, probe2013, inputs.projectName);
  return probe2010.isHeld ? Dialect::of2010 : Dialect::of2013;
}

} // namespace LagomareCli
