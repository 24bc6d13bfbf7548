#pragma once

#include "tools/cli/Options.h"
#include "tools/cli/ProjectCall.h"

#include <map>

namespace LagomareTools {

/// The words of `lagomare import`.
class ImportCall {
public:
  /// Adds the command to the parser, which must not parse once this object has gone.
  explicit ImportCall(CLI::App& app);

  [[nodiscard]] const CLI::App& command() const { return command_; }
  /// What the call said, once it is parsed. Throws UsageError.
  [[nodiscard]] ImportOptions options();

private:
  void addOutputs();

  CLI::App& command_;
  ProjectCall project_;
  std::map<const OutputKind*, std::string> names_;
  ImportOptions options_;
};

} // namespace LagomareTools
