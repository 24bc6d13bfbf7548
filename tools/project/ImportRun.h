#pragma once

#include "tools/project/Imported.h"
#include "tools/project/Inputs.h"
#include "tools/system/Interruption.h"

namespace LagomareTools {

/// Runs the import in a private working directory, which is gone when this returns. Nothing where the user asked to
/// stop. Throws Failure, also where the project was changed meanwhile.
[[nodiscard]] std::optional<Imported> runImport(const ProjectOptions& options, const Inputs& inputs,
                                                Interruption& interruption,
                                                const std::function<void(long, long)>& progress);

} // namespace LagomareTools
