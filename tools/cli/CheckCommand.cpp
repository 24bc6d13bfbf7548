#include "tools/cli/CheckCommand.h"

#include "tools/check/Check.h"
#include "tools/check/CheckJson.h"
#include "tools/check/CheckText.h"
#include "tools/cli/Progress.h"
#include "tools/system/Failure.h"
#include "tools/system/StandardStreams.h"

#include <cstdio>
#include <fmt/format.h>

namespace LagomareTools {

namespace {

constexpr int success = 0;
constexpr int faultsFound = 1;
constexpr std::size_t mostErrors = 10;

CheckResult checkWithProgress(const Project& project, const std::string& lockFile, bool isQuiet) {
  Progress progress(!isQuiet);
  CheckResult result =
      checkProject(*project.source(), project.dialect(), lockFile, [&progress](std::size_t done, std::size_t inAll) {
        progress.show(static_cast<long>(done), static_cast<long>(inAll));
      });
  project.requireUnchanged();
  return result;
}

void printErrors(const CheckResult& result) {
  const std::size_t errors = std::min(result.count(Severity::error), mostErrors); // they come first
  for (std::size_t at = 0; at < errors; ++at) {
    const Fault& fault = result.faults[at];
    const std::string line = fmt::format("lagomare: {}: {}. {}\n", fault.code, lineOf(fault), fault.remedy);
    std::fputs(line.c_str(), stderr);
  }
}

std::string errorsText(const CheckResult& result, const std::string& project) {
  const std::size_t errors = result.count(Severity::error);
  return fmt::format("{}: {} error{}, nothing is imported; see lagomare check {}", project, errors,
                     errors == 1 ? "" : "s", project);
}

} // namespace

int runCheck(const CheckOptions& options) {
  if (options.showsRules) {
    writeToStandardOutput(rulesText());
    return success;
  }
  const Project project(options.project);
  const CheckResult result = checkWithProgress(project, project.lockFile().filename().u8string(), false);
  writeToStandardOutput(options.isJson ? jsonOf(result, project.name())
                                       : textOf(result, project.name(), options.showsAll));
  const bool isFaulty = result.count(Severity::error) > 0 || (options.isStrict && result.count(Severity::warning) > 0);
  return isFaulty ? faultsFound : success;
}

CheckResult checkBeforeImport(const Project& project, bool isQuiet) {
  CheckResult result = checkWithProgress(project, "", isQuiet);
  if (result.prospect == Prospect::failed) {
    printErrors(result);
    throw Failure(errorsText(result, project.name()));
  }
  if (result.prospect == Prospect::imported && result.count(Severity::warning) > 0)
    printWarning(
        fmt::format("{0}: {1} warning{2}; rows not taken: {3}, rows that come in otherwise than they are meant: "
                    "{4}; lagomare check {0} lists them",
                    project.name(), result.count(Severity::warning), result.count(Severity::warning) == 1 ? "" : "s",
                    result.numOfRowsNotTaken(), result.numOfRowsTakenOtherwise()));
  return result;
}

} // namespace LagomareTools
