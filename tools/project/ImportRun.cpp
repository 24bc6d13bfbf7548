#include "tools/project/ImportRun.h"

#include "access/LagomareProjectManager.h"
#include "loader/LagomareProjectLoader.h"
#include "model/Scenario.h"
#include "tools/project/DialectProbe.h"
#include "tools/project/ErrorReport.h"
#include "tools/project/LastQuery.h"
#include "tools/project/PrivateDirectory.h"
#include "tools/project/QueryLauncher.h"
#include "tools/system/Failure.h"

namespace LagomareTools {

namespace {

/// The query channel, open for as long as this lives.
class OpenChannel {
public:
  explicit OpenChannel(const PlainNames& names) {
    LagomareProjectManager::getInstance(names.database)->setApiExecutable(names.executable);
  }
  ~OpenChannel() { LagomareProjectManager::cleanInstance(); }
  OpenChannel(const OpenChannel&) = delete;
  OpenChannel& operator=(const OpenChannel&) = delete;
};

SceneryProjectManagerRet load(const PlainNames& names, const ImportPlace& place,
                              const std::function<bool(long, long)>& progress) {
  const OpenChannel channel(names);
  const auto loadProject =
      place.dialect == Dialect::of2010 ? LagomareProjectLoader::load2010 : LagomareProjectLoader::load2013;
  try {
    auto result = loadProject(names.executable, names.database, progress);
    requireLaunched();
    return result;
  } catch (const Failure&) {
    throw;
  } catch (const std::exception& error) {
    requireLaunched();
    throw Failure(reportOf(error, place));
  }
}

Dialect dialectOf(const ProjectOptions& options, const Inputs& inputs, const PlainNames& names) {
  if (options.dialect)
    return *options.dialect;
  const OpenChannel channel(names);
  return findDialect(inputs, names.database);
}

void requirePeriod(const SceneryProjectManagerRet& result, const ImportPlace& place) {
  if (result.scenario && result.scenario->getInterval().isEmpty())
    throw Failure(place.inputs.projectName + ": the project's period is empty: its duration, column Duracao of table " +
                  settingsTableOf(place.dialect) + ", is 0 years; correct it");
}

Imported importIn(const PlainNames& names, const ProjectOptions& options, const Inputs& inputs,
                  const Interruption& interruption, const std::function<void(long, long)>& progress) {
  const ImportPlace place{inputs, names.database, dialectOf(options, inputs, names), !options.dialect};
  Imported imported{place.dialect, place.isDialectFound, {importCancelled, nullptr}};
  if (interruption.isRequested())
    return imported;
  imported.result = load(names, place, [&](long stepsDone, long stepsInAll) {
    requireLaunched();
    if (interruption.isRequested())
      return false;
    progress(stepsDone, stepsInAll);
    return true;
  });
  requirePeriod(imported.result, place);
  return imported;
}

/// What changes when somebody writes to the project: size and time of its file and of the one through which a SQLite
/// database in write-ahead mode is written.
std::vector<std::pair<std::uintmax_t, std::filesystem::file_time_type>> stampOf(const std::filesystem::path& project) {
  std::error_code missing;
  const std::filesystem::path log = project.string() + "-wal";
  return {{std::filesystem::file_size(project, missing), std::filesystem::last_write_time(project, missing)},
          {std::filesystem::file_size(log, missing), std::filesystem::last_write_time(log, missing)}};
}

} // namespace

std::optional<Imported> runImport(const ProjectOptions& options, const Inputs& inputs, Interruption& interruption,
                                  const std::function<void(long, long)>& progress) {
  const PrivateDirectory directory;
  const PlainNames names = installLauncher(inputs.program, inputs.executable, inputs.project);
  interruption.whenRequested([path = directory.path()] { stopQuery(path); });
  const auto stamp = stampOf(inputs.project);
  try {
    Imported imported = importIn(names, options, inputs, interruption, progress);
    if (imported.result.status != importCancelled.code) {
      if (stampOf(inputs.project) != stamp)
        throw Failure(inputs.projectName + ": was changed while it was read, so its parts do not fit together; import "
                                           "it when no other program writes to it");
      return imported;
    }
  } catch (const std::exception&) {
    if (!interruption.isRequested())
      throw;
  }
  return std::nullopt;
}

} // namespace LagomareTools
