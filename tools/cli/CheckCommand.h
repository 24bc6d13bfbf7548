#pragma once

#include "tools/check/result/CheckResult.h"
#include "tools/cli/Options.h"
#include "tools/project/Project.h"

namespace LagomareTools {

/// `lagomare check`: prints what is wrong with a project, or what can be. Returns the exit code. Throws Failure and
/// Interrupted.
[[nodiscard]] int runCheck(const CheckOptions& options);

/// The check before an import. Returns what it found if the import can go on, or will itself say that the project is
/// refused or invalid; warnings are told in one line on standard error. Throws Failure with the number of errors after
/// it has printed the first ones on standard error.
[[nodiscard]] CheckResult checkBeforeImport(const Project& project, bool isQuiet);

} // namespace LagomareTools
