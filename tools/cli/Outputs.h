#pragma once

#include "tools/project/Imported.h"
#include "tools/project/Inputs.h"
#include "tools/system/OutputFile.h"

#include <list>

namespace LagomareTools {

/// A folder for outputs; made where it is missing, and then removed again unless something was put into it.
class OutputFolder {
public:
  /// Throws Failure.
  explicit OutputFolder(const std::string& name);

private:
  std::optional<Leftover> leftover_;
};

/// All files that a call asks for. They are opened before the import, filled after it, and replace what was there all
/// together.
class Outputs {
public:
  /// Throws UsageError where two names mean one file, and Failure where one cannot be written.
  Outputs(const ImportOptions& options, const Inputs& inputs);

  /// Whether standard output is taken.
  [[nodiscard]] bool takeStandardOutput() const { return takesStandardOutput_; }

  /// Fills the files; without a scenario only the JSON. Throws Failure.
  void write(const Imported& imported);
  /// Puts the filled files into their places: all, or none as far as OutputFile::restore can. Throws Failure.
  void commit();

private:
  bool takesStandardOutput_;
  std::optional<OutputFolder> csvFolder_; ///< goes after the files
  std::list<OutputFile> csv_;             ///< one per table
  std::optional<OutputFile> geojson_;
  std::optional<OutputFile> json_;
};

} // namespace LagomareTools
