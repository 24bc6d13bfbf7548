#pragma once

#include "tools/export/ExportInput.h"
#include "tools/system/OutputFile.h"

#include <vector>

namespace LagomareTools {

/// One file of an output, and what fills it.
struct OutputPart {
  const char* fileName; ///< in the folder that the option names; empty: the option names the file itself
  /// Fills file.writer(), or the file at file.path(). Throws Failure.
  void (*write)(OutputFile& file, const ExportInput& input);
};

/// An option of `lagomare import` that asks for an output.
struct OutputKind {
  const char* option;
  const char* valueName; ///< FILE or DIR
  const char* help;
  bool takesStandardOutput; ///< the value "-" means standard output
  bool tellsFailure;        ///< is also written for a refused or an invalid project, without a scenario
  std::vector<OutputPart> parts;
};

/// All of them, in the order of the help. To add an output, add an entry.
[[nodiscard]] const std::vector<OutputKind>& outputKinds();

} // namespace LagomareTools
