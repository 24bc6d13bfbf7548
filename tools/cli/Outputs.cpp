#include "tools/cli/Outputs.h"

#include "tools/system/Failure.h"

#include <algorithm>
#include <system_error>
#include <utility>
#include <vector>

namespace LagomareTools {

namespace {

namespace fs = std::filesystem;

/// A word of the call that names a file.
struct NamedFile {
  const char* word;
  fs::path file;
};

bool isOneFile(const fs::path& one, const fs::path& other) {
  std::error_code error;
  if (fs::exists(one, error) && fs::exists(other, error))
    return (fs::is_regular_file(one, error) || fs::is_directory(one, error)) && fs::equivalent(one, other, error);
  return fs::weakly_canonical(one, error) == fs::weakly_canonical(other, error);
}

std::string nameOf(const OutputRequest& request, const OutputPart& part) {
  return *part.fileName == '\0' ? request.name : (fs::u8path(request.name) / part.fileName).u8string();
}

/// Each file once: writing one over another, or over what is read, would destroy it.
void requireDifferentFiles(const ImportOptions& options, const ProjectFiles& read) {
  std::vector<NamedFile> files{{"the project", read.project}, {"the query executable", read.queryExecutable}};
  const auto add = [&files](const char* word, const std::string& name) {
    NamedFile added{word, resolved(name)};
    for (const NamedFile& file : files)
      if (isOneFile(file.file, added.file))
        throw UsageError(std::string(file.word) + " and " + word + " are the same file, " + name);
    files.push_back(std::move(added));
  };
  for (const OutputRequest& request : options.outputs)
    for (const OutputPart& part : request.kind->parts)
      if (!isStandardOutput(request))
        add(request.kind->option, nameOf(request, part));
}

} // namespace

OutputFolder::OutputFolder(const std::string& name) {
  std::error_code error;
  const fs::path folder = fs::absolute(fs::u8path(name), error);
  if (fs::create_directory(folder, error))
    made_ = folder;
  else if (error) // none if it is there already
    throw Failure(
        "cannot make the folder " + name + ": " +
        (error == std::errc::no_such_file_or_directory ? "its parent folder does not exist" : error.message()));
}

OutputFolder::~OutputFolder() {
  std::error_code isNotEmpty;
  if (!made_.empty())
    fs::remove(made_, isNotEmpty);
}

Outputs::Outputs(const ImportOptions& options, const ProjectFiles& files)
    : takesStandardOutput_(std::any_of(options.outputs.begin(), options.outputs.end(), isStandardOutput)) {
  requireDifferentFiles(options, files);
  for (const OutputRequest& request : options.outputs)
    open(request);
}

void Outputs::open(const OutputRequest& request) {
  const auto& parts = request.kind->parts;
  if (*parts.front().fileName != '\0')
    folders_.emplace_back(request.name);
  for (const OutputPart& part : parts)
    outputs_.emplace_back(*request.kind, part, nameOf(request, part));
}

void Outputs::write(const ExportInput& input) {
  for (Output& output : outputs_)
    if (input.imported.result.scenario || output.kind.tellsFailure) {
      output.part.write(output.file, input);
      output.file.finish();
    }
}

void Outputs::commit() {
  try {
    for (Output& output : outputs_)
      output.file.commit();
  } catch (...) {
    for (Output& output : outputs_)
      output.file.restore();
    throw;
  }
}

} // namespace LagomareTools
