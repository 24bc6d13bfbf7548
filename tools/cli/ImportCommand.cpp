#include "tools/cli/ImportCommand.h"

#include "model/TeluUtmDegreeConversion.h"
#include "tools/cli/Outputs.h"
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

void printSummary(const Imported& imported, const ImportOptions& options) {
  FileWriter out(STDOUT_FILENO, "standard output");
  out.write(summaryOf(imported, options.utmZone));
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

int importProject(const ImportOptions& options) {
  Interruption interruption;
  const Inputs inputs = findInputs(options);
  Outputs outputs(options, inputs);
  if (options.utmZone)
    TeluUtmDegreeConversion::setZone(options.utmZone->number, options.utmZone->hemisphere);
  const auto imported = runImport(options, inputs, interruption);
  if (!imported || !interruption.endImport())
    return cancelled();
  outputs.write(*imported);
  if (!options.isQuiet && !outputs.takeStandardOutput())
    printSummary(*imported, options);
  interruption.endAll();
  outputs.commit();
  return exitCodeOf(*imported, options.project);
}

} // namespace LagomareTools
