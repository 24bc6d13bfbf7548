#include "tools/cli/Outputs.h"

#include "tools/export/CsvExport.h"
#include "tools/export/GeoJsonExport.h"
#include "tools/export/JsonExport.h"
#include "tools/system/Failure.h"

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

std::string tableIn(const std::string& folder, const CsvTable& table) {
  return (fs::path(folder) / table.fileName).string();
}

/// Each file once: writing one over another, or over what is read, would be the end of it.
void requireDifferentFiles(const ImportOptions& options, const Inputs& inputs) {
  std::vector<NamedFile> files{{"the project", inputs.project}, {"the query executable", inputs.executable}};
  const auto add = [&files](const char* word, const std::string& name) {
    NamedFile added{word, placeOf(name)};
    for (const NamedFile& file : files)
      if (isOneFile(file.file, added.file))
        throw UsageError(std::string(file.word) + " and " + word + " are the same file, " + name);
    files.push_back(std::move(added));
  };
  if (options.json && options.json != OutputFile::standardOutput)
    add("--json", *options.json);
  if (options.geojson && options.geojson != OutputFile::standardOutput)
    add("--geojson", *options.geojson);
  if (!options.csv)
    return;
  add("--csv", *options.csv);
  for (const CsvTable& table : csvTables)
    add("--csv", tableIn(*options.csv, table));
}

bool wantsStandardOutput(const ImportOptions& options) {
  const bool byJson = options.json == OutputFile::standardOutput;
  const bool byGeoJson = options.geojson == OutputFile::standardOutput;
  if (byJson && byGeoJson)
    throw UsageError("--json and --geojson cannot both go to standard output");
  return byJson || byGeoJson;
}

} // namespace

OutputFolder::OutputFolder(const std::string& name) {
  std::error_code error;
  const fs::path folder = fs::absolute(name, error);
  if (fs::create_directory(folder, error))
    leftover_.emplace([folder] {
      std::error_code notEmpty;
      fs::remove(folder, notEmpty);
    });
  else if (error) // none where it is there already
    throw Failure("cannot make the folder " + name + ": " +
                  (error == std::errc::no_such_file_or_directory ? "the folder that it would stand in is not there"
                                                                 : error.message()));
}

Outputs::Outputs(const ImportOptions& options, const Inputs& inputs)
    : takesStandardOutput_(wantsStandardOutput(options)) {
  requireDifferentFiles(options, inputs);
  if (options.csv) {
    csvFolder_.emplace(*options.csv);
    for (const CsvTable& table : csvTables)
      csv_.emplace_back(tableIn(*options.csv, table));
  }
  if (options.geojson)
    geojson_.emplace(*options.geojson);
  if (options.json)
    json_.emplace(*options.json);
}

void Outputs::write(const Imported& imported) {
  if (imported.result.scenario) {
    const Scenario& scenario = *imported.result.scenario;
    auto file = csv_.begin();
    for (const CsvTable& table : csvTables)
      if (file != csv_.end()) {
        table.write(file->writer(), scenario);
        (file++)->finish();
      }
    if (geojson_) {
      writeGeoJson(geojson_->writer(), scenario);
      geojson_->finish();
    }
  }
  if (json_) {
    writeJson(json_->writer(), imported);
    json_->finish();
  }
}

void Outputs::commit() {
  std::vector<OutputFile*> files;
  for (OutputFile& file : csv_)
    files.push_back(&file);
  for (auto* file : {&geojson_, &json_})
    if (*file)
      files.push_back(&**file);
  try {
    for (OutputFile* file : files)
      file->commit();
  } catch (...) {
    for (OutputFile* file : files)
      file->restore();
    throw;
  }
}

} // namespace LagomareTools
