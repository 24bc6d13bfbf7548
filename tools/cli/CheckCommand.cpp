#include "tools/cli/CheckCommand.h"

#include "tools/check/Check.h"
#include "tools/check/result/CheckJson.h"
#include "tools/check/result/CheckText.h"
#include "tools/cli/Progress.h"
#include "tools/system/Failure.h"
#include "tools/system/StandardStreams.h"
#include "tools/system/Text.h"

#include <algorithm>
#include <cstdio>
#include <fmt/format.h>
#include <string>

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

/// A word of a command line, as a shell takes it.
std::string shellWord(const std::string& text) {
  constexpr const char* harmless = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789./_+,:@%=-";
  if (text.find_first_not_of(harmless) == std::string::npos)
    return text;
  std::string word = "'";
  for (const char character : text)
    word += character == '\'' ? "'\\''" : std::string(1, character);
  return word + '\'';
}

/// The call that lists the faults of a project that is read with these options.
std::string checkCall(const ProjectOptions& options) {
  std::string call = "lagomare check ";
  if (options.dialect)
    call += std::string("--dialect ") + nameOf(*options.dialect) + ' ';
  if (options.queryExecutable)
    call += "--query-executable " + shellWord(*options.queryExecutable) + ' ';
  if (options.utmZone)
    call += "--utm-zone " + textOf(*options.utmZone) + ' ';
  return call + (options.project.front() == '-' ? "-- " : "") + shellWord(options.project);
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
    throw Failure(fmt::format("{}: {}, nothing is imported; see {}", project.name(),
                              counted(result.count(Severity::error), "error"), checkCall(project.options())));
  }
  if (result.prospect == Prospect::imported && result.count(Severity::warning) > 0)
    printWarning(
        fmt::format("{}: {}; rows not taken: {}, rows that come in otherwise than they are meant: {}; {} lists them",
                    project.name(), counted(result.count(Severity::warning), "warning"), result.numOfRowsNotTaken(),
                    result.numOfRowsTakenOtherwise(), checkCall(project.options())));
  return result;
}

} // namespace LagomareTools
