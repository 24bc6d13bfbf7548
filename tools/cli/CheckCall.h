#pragma once

#include "tools/cli/Options.h"
#include "tools/cli/ProjectCall.h"

namespace LagomareTools {

/// The words of `lagomare check`.
class CheckCall {
public:
  /// Adds the command to the parser, which must not parse once this object has gone.
  explicit CheckCall(CLI::App& app);

  [[nodiscard]] const CLI::App& command() const { return command_; }
  /// What the call said, once it is parsed. Throws UsageError.
  [[nodiscard]] CheckOptions options();

private:
  CLI::App& command_;
  ProjectCall project_;
  std::string format_;
  CheckOptions options_;
};

} // namespace LagomareTools
