#pragma once

#include "tools/project/ProjectOptions.h"

#include <CLI/CLI.hpp>
#include <string>

namespace LagomareTools {

/// Options that are not shown in the help belong to this group.
constexpr const char* hiddenGroup = "";

/// The words of a call that say which project to read and how; `lagomare import` and `lagomare check` share them. Must
/// live as long as the command's parser.
class ProjectCall {
public:
  explicit ProjectCall(CLI::App& command);
  ProjectCall(const ProjectCall&) = delete;
  ProjectCall& operator=(const ProjectCall&) = delete;

  [[nodiscard]] CLI::Option& project() { return *project_; }
  /// What the call said, once it is parsed.
  [[nodiscard]] ProjectOptions options() const;

private:
  std::string path_;
  std::string dialect_ = "auto";
  std::string queryExecutable_;
  std::string utmZone_;
  CLI::Option* project_; ///< owned by the command
};

/// Adds an option without a value.
void addFlag(CLI::App& command, const char* name, bool& value, const char* help);

/// Returns why a text is no path, or an empty string if it is one.
[[nodiscard]] std::string checkPath(const std::string& text);

} // namespace LagomareTools
