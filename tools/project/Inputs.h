#pragma once

#include "tools/project/ProjectOptions.h"

#include <filesystem>

namespace LagomareTools {

/// The files that an import reads or starts; all paths are absolute.
struct Inputs {
  std::string projectName;          ///< the project's path as it was given, for messages
  std::filesystem::path project;    ///< links resolved
  std::filesystem::path executable; ///< the query executable's own path
  bool isOwnExecutable;             ///< the user's, not the bundled one
  std::filesystem::path program;    ///< this program
};

/// Finds and checks them before anything else happens. Throws Failure.
[[nodiscard]] Inputs findInputs(const ProjectOptions& options, const std::string& calledAs);

} // namespace LagomareTools
