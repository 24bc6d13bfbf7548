#include "tools/cli/ImportCommand.h"

#include "tools/cli/CheckCommand.h"
#include "tools/cli/Outputs.h"
#include "tools/cli/Progress.h"
#include "tools/cli/Summary.h"
#include "tools/project/Import.h"
#include "tools/system/Failure.h"
#include "tools/system/Interruption.h"
#include "tools/system/StandardStreams.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace LagomareTools {

namespace {

constexpr int success = 0;
constexpr int refused = 3;
constexpr int invalid = 4;

Imported importWithProgress(const Project& project, bool isQuiet) {
  Progress progress(!isQuiet);
  return importScenario(project, [&progress](long done, long inAll) { progress.show(done, inAll); });
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
  Outputs outputs(options, ProjectFiles(options.project));
  const Project project(options.project);
  if (const auto lock = project.lockFile(); !lock.empty())
    printWarning(project.name() + ": another program may have it open: its lock file " + lock.filename().u8string() +
                 " stands beside it");
  std::optional<std::vector<Fault>> faults;
  if (options.isChecked)
    faults = checkBeforeImport(project, options.isQuiet).faults;
  const ExportInput input{importWithProgress(project, options.isQuiet),
                          project.name(),
                          project.utmZone(),
                          project.isZoneAssumed(),
                          options.csvFormat,
                          std::move(faults)};
  outputs.write(input);
  if (!options.isQuiet && !outputs.takeStandardOutput())
    writeToStandardOutput(summaryOf(input));
  Interruption::throwIfRequested();
  outputs.commit();
  return exitCodeOf(input.imported, project.name());
}

} // namespace LagomareTools
