#include "tools/project/Project.h"

#include "model/TeluUtmDegreeConversion.h"
#include "tools/project/DialectProbe.h"
#include "tools/project/ExecutableSource.h"
#include "tools/project/ProjectFiles.h"
#include "tools/project/SessionSource.h"
#include "tools/system/Failure.h"

#include <system_error>

namespace LagomareTools {

namespace {

namespace fs = std::filesystem;

fs::path logOf(const fs::path& project) { return fs::path(project) += "-wal"; }

} // namespace

Project::Project(const ProjectOptions& options) : options_(options) {
  const ProjectFiles files(options_);
  path_ = files.project;
  stamp_ = FileStamp::of(path_);
  logStamp_ = FileStamp::of(logOf(path_));
  TeluUtmDegreeConversion::setZone(utmZone().number, utmZone().hemisphere);
  if (isBundled())
    source_ = std::make_shared<SessionSource>(files.queryExecutable, path_, name());
  else
    source_ = std::make_shared<ExecutableSource>(files.queryExecutable, path_);
  dialect_ = options_.dialect ? *options_.dialect : findDialect(*source_, isBundled(), name());
}

fs::path Project::lockFile() const {
  for (const char* const ending : {".ldb", ".laccdb"}) {
    std::error_code ignored;
    if (fs::path file = fs::path(path_).replace_extension(ending); fs::exists(file, ignored))
      return file;
  }
  return {};
}

void Project::requireUnchanged() const {
  if (!(FileStamp::of(path_) == stamp_ && FileStamp::of(logOf(path_)) == logStamp_))
    throw Failure(name() + ": was changed while it was read, so its parts do not fit together; read it when no other "
                           "program writes to it");
}

} // namespace LagomareTools
