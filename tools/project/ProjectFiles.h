#pragma once

#include "tools/project/ProjectOptions.h"

#include <filesystem>

namespace LagomareTools {

/// The files that a call reads or starts; absolute.
struct ProjectFiles {
  std::filesystem::path project; ///< symbolic links resolved
  std::filesystem::path queryExecutable;

  /// Throws Failure if the project cannot be read.
  explicit ProjectFiles(const ProjectOptions& options);
};

} // namespace LagomareTools
