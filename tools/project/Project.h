#pragma once

#include "tools/project/ProjectOptions.h"
#include "tools/project/ProjectSource.h"
#include "tools/system/FileStamp.h"

#include <filesystem>
#include <memory>
#include <string>

namespace LagomareTools {

/// A legacy project, opened for reading: its dialect and the source that answers queries on it. With the bundled query
/// executable one process answers all of them, from one state of the project.
class Project {
public:
  /// Checks the files, starts the query executable, finds the dialect, and sets the core's UTM zone. Throws Failure if
  /// one of these cannot be done, and Interrupted.
  explicit Project(const ProjectOptions& options);

  /// As they were given.
  [[nodiscard]] const ProjectOptions& options() const { return options_; }
  /// The project's path as the user wrote it, for messages.
  [[nodiscard]] const std::string& name() const { return options_.project; }
  /// Absolute, symbolic links resolved.
  [[nodiscard]] const std::filesystem::path& path() const { return path_; }
  [[nodiscard]] Dialect dialect() const { return dialect_; }
  /// Whether the database was asked for the dialect.
  [[nodiscard]] bool isDialectFound() const { return !options_.dialect; }
  [[nodiscard]] UtmZone utmZone() const { return options_.utmZone.value_or(usualZone); }
  [[nodiscard]] bool isZoneAssumed() const { return !options_.utmZone; }
  /// Whether the bundled query executable answers. A custom one may refuse to list tables and columns.
  [[nodiscard]] bool isBundled() const { return !options_.queryExecutable; }

  /// Answers queries on the project; never null.
  [[nodiscard]] const std::shared_ptr<ProjectSource>& source() const { return source_; }

  /// The lock file of Access beside the project, which tells that another program may have it open; empty if there is
  /// none.
  [[nodiscard]] std::filesystem::path lockFile() const;
  /// Throws Failure if the project's file has changed since it was opened.
  void requireUnchanged() const;

private:
  ProjectOptions options_;
  std::filesystem::path path_;
  FileStamp stamp_;
  FileStamp logStamp_; ///< of the file through which SQLite writes in write-ahead mode
  std::shared_ptr<ProjectSource> source_;
  Dialect dialect_ = Dialect::of2013;
};

} // namespace LagomareTools
