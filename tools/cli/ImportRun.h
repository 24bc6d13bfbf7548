#pragma once

#include "tools/cli/Imported.h"
#include "tools/cli/Inputs.h"
#include "tools/cli/Interruption.h"

namespace LagomareCli {

/// Runs the import in a private working directory, which is gone when this returns. Nothing where the user asked to
/// stop. Throws Failure, also where the project was changed meanwhile.
[[nodiscard]] std::optional<Imported> runImport(const ImportOptions& options, const Inputs& inputs,
                                                Interruption& interruption);

} // namespace LagomareCli
