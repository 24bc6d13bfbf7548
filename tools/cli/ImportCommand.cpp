#include "tools/cli/ImportCommand.h"

#include "model/TeluUtmDegreeConversion.h"
#include "tools/cli/Outputs.h"
#include "tools/cli/Progress.h"
#include "tools/cli/Summary.h"
#include "tools/project/ImportRun.h"
#include "tools/system/Failure.h"

#include <cstdio>
#include <unistd.h>

namespace LagomareTools {

namespace {

constexpr int success = 0;
constexpr int refused = 3;
constexpr int invalid = 4;

int cancelled() {
  std::fputs("lagomare: cancelled; the outputs are as they were\n", stderr);
  return Interruption::exitCode;
}

void printSummary(const ExportInput& input) {
  FileWriter out(STDOUT_FILENO, "standard output");
  out.write(summaryOf(input));
  out.flush();
}

int exitCodeOf(const Imported& imported, const std::string& project) {
  if (imported.result.status == importSucceeded.code)
    return success;
  const std::string table = settingsTableOf(imported.dialect);
  if (imported.result.status == importRefused.code) {
    printError(project + ": refused: it is a tactical-planning project (column TipoSimul of table " + table + ")");
    return refused;
  }
  printError(project + ": no valid project: table " + table + ", which holds the general settings, has no row");
  return invalid;
}

} // namespace

int importProject(const ImportOptions& options, const std::string& calledAs) {
  Interruption interruption;
  const Inputs inputs = findInputs(options.project, calledAs);
  Outputs outputs(options, inputs);
  const UtmZone zone = options.project.utmZone.value_or(usualZone);
  TeluUtmDegreeConversion::setZone(zone.number, zone.hemisphere);
  auto imported = [&] {
    Progress progress(!options.isQuiet);
    return runImport(options.project, inputs, interruption, [&](long done, long inAll) { progress.show(done, inAll); });
  }();
  if (!imported || !interruption.endImport())
    return cancelled();
  const ExportInput input{*imported, options.project.project, zone, !options.project.utmZone, options.csvFormat, {}};
  outputs.write(input);
  if (!options.isQuiet && !outputs.takeStandardOutput())
    printSummary(input);
  interruption.endAll();
  outputs.commit();
  return exitCodeOf(*imported, options.project.project);
}

} // namespace LagomareTools
