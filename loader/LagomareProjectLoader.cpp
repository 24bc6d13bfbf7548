#include "loader/LagomareProjectLoader.h"

#include "access/LagomareProjectManager.h"
#include "loader/2010/SceneryProjectManager.h"
#include "loader/2013/SceneryProjectManager.h"
#include "loader/ImportStatus.h"

namespace {

using Progress = std::function<bool(long, long)>;
using Load = SceneryProjectManagerRet (*)(Progress);

/// Cleans up only on return: after an error the script and the answer tell what was asked.
SceneryProjectManagerRet import(const std::string& executablePath, const std::string& databaseFilename,
                                const Progress& progress, Load load) {
  LagomareProjectManager::getInstance(databaseFilename);
  LagomareProjectManager::getInstance()->setApiExecutable(executablePath);
  auto result = load(progress);
  if (ImportStatus{result.status, result.message.c_str()} == importSucceeded)
    LagomareProjectLoader::transformBirectionalLinks(result.scenario);
  LagomareProjectManager::cleanInstance();
  return result;
}

} // namespace

SceneryProjectManagerRet LagomareProjectLoader::load2010(const std::string& executablePath,
                                                         const std::string& databaseFilename, Progress progress) {
  return import(executablePath, databaseFilename, progress, Lagomare2010::SceneryProjectManager::load);
}

SceneryProjectManagerRet LagomareProjectLoader::load2013(const std::string& executablePath,
                                                         const std::string& databaseFilename, Progress progress) {
  return import(executablePath, databaseFilename, progress, Lagomare2013::SceneryProjectManager::load);
}
