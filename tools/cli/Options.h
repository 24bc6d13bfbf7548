#pragma once

#include "tools/cli/OutputKinds.h"
#include "tools/export/ExportInput.h"
#include "tools/project/ProjectOptions.h"
#include "tools/system/OutputFile.h"

#include <string>
#include <variant>
#include <vector>

namespace LagomareTools {

/// An output that the call asks for; the name as the user wrote it.
struct OutputRequest {
  const OutputKind* kind;
  std::string name;
};

[[nodiscard]] inline bool isStandardOutput(const OutputRequest& request) {
  return request.name == OutputFile::standardOutput;
}

/// The call of `lagomare import`.
struct ImportOptions {
  ProjectOptions project;
  std::vector<OutputRequest> outputs; ///< in the order of outputKinds()
  CsvFormat csvFormat = CsvFormat::rfc4180;
  bool isChecked = true;
  bool isQuiet = false;
};

/// The call of `lagomare check`.
struct CheckOptions {
  ProjectOptions project; ///< without a path where only the rules are asked for
  bool isJson = false;
  bool showsAll = false;
  bool isStrict = false;
  bool showsRules = false;
};

/// A call that asked only for the text to print: help or version.
struct HelpText {
  std::string text;
};

using Options = std::variant<HelpText, ImportOptions, CheckOptions>;

/// Reads the call. Throws UsageError.
[[nodiscard]] Options parseOptions(int argumentCount, const char* const* arguments);

} // namespace LagomareTools
