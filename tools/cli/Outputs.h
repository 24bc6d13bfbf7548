#pragma once

#include "tools/cli/Options.h"
#include "tools/cli/OutputKinds.h"
#include "tools/export/ExportInput.h"
#include "tools/project/ProjectFiles.h"
#include "tools/system/OutputFile.h"

#include <filesystem>
#include <list>
#include <string>

namespace LagomareTools {

/// A folder for outputs. Made if it is missing, and then removed again if nothing was put into it.
class OutputFolder {
public:
  /// Throws Failure.
  explicit OutputFolder(const std::string& name);
  ~OutputFolder();
  OutputFolder(const OutputFolder&) = delete;
  OutputFolder& operator=(const OutputFolder&) = delete;

private:
  std::filesystem::path made_; ///< empty if the folder was there before
};

/// All files that a call asks for. They are opened before the import, filled after it, and replace what was there all
/// together.
class Outputs {
public:
  /// Throws UsageError where two names mean one file, and Failure where one cannot be written.
  Outputs(const ImportOptions& options, const ProjectFiles& files);

  /// Whether standard output is taken.
  [[nodiscard]] bool takeStandardOutput() const { return takesStandardOutput_; }

  /// Fills the files; without a scenario only those that tell a failure. Throws Failure.
  void write(const ExportInput& input);
  /// Puts the filled files into their places: all, or none as far as OutputFile::restore can. Throws Failure.
  void commit();

private:
  struct Output {
    Output(const OutputKind& outputKind, const OutputPart& outputPart, const std::string& name)
        : kind(outputKind), part(outputPart), file(name) {}
    const OutputKind& kind;
    const OutputPart& part;
    OutputFile file;
  };

  void open(const OutputRequest& request);

  bool takesStandardOutput_;
  std::list<OutputFolder> folders_; ///< go after the files
  std::list<Output> outputs_;
};

} // namespace LagomareTools
