#include "tools/project/Import.h"

#include "access/LagomareProjectManager.h"
#include "loader/LagomareProjectLoader.h"
#include "model/Scenario.h"
#include "tools/project/ErrorReport.h"
#include "tools/system/Failure.h"
#include "tools/system/Interruption.h"

#include <exception>

namespace LagomareTools {

namespace {

/// The library's query channel, answered by a project's source for as long as this object lives.
class OpenChannel {
public:
  explicit OpenChannel(const Project& project) {
    project.source()->keepAnswers();
    LagomareProjectManager::getInstance(project.path().u8string())->setSource(project.source());
  }
  ~OpenChannel() { LagomareProjectManager::cleanInstance(); }
  OpenChannel(const OpenChannel&) = delete;
  OpenChannel& operator=(const OpenChannel&) = delete;
};

SceneryProjectManagerRet load(const Project& project, const std::function<void(long, long)>& progress) {
  const OpenChannel channel(project);
  const auto loadProject =
      project.dialect() == Dialect::of2010 ? LagomareProjectLoader::load2010 : LagomareProjectLoader::load2013;
  try {
    return loadProject("", project.path().u8string(), [&progress](long stepsDone, long stepsInAll) {
      progress(stepsDone, stepsInAll);
      return !Interruption::isRequested();
    });
  } catch (const Interrupted&) {
    throw;
  } catch (const std::exception& error) {
    throw Failure(reportOf(error, project));
  }
}

void requirePeriod(const SceneryProjectManagerRet& result, const Project& project) {
  if (result.scenario && result.scenario->getInterval().isEmpty())
    throw Failure(project.name() + ": the project's period is empty: its duration, column Duracao of table " +
                  settingsTableOf(project.dialect()) + ", is 0 years; correct it");
}

} // namespace

Imported importScenario(const Project& project, const std::function<void(long, long)>& progress) {
  Imported imported{project.dialect(), project.isDialectFound(), load(project, progress)};
  Interruption::throwIfRequested();
  requirePeriod(imported.result, project);
  project.requireUnchanged();
  return imported;
}

} // namespace LagomareTools
