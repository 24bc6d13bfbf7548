#include "tools/cli/ImportCall.h"

#include "tools/system/Failure.h"

#include <algorithm>

namespace LagomareTools {

namespace {

constexpr const char* importFooter = R"(Example:
  lagomare import basin.mdb --json basin.json --geojson basin.geojson

Exit codes: 0 imported, 1 failed, 2 usage error, 3 refused (tactical-planning project), 4 no valid project,
130 cancelled.)";

std::string checkPlace(const std::string& text) {
  return text == OutputFile::standardOutput ? "it cannot go to standard output" : checkPath(text);
}

} // namespace

ImportCall::ImportCall(CLI::App& app)
    : command_(*app.add_subcommand("import", "Import one legacy project")), project_(command_) {
  project_.project().required();
  addOutputs();
  addFlag(command_, "--quiet", options_.isQuiet, "No summary, no progress");
  command_.footer(importFooter);
}

void ImportCall::addOutputs() {
  for (const OutputKind& kind : outputKinds())
    command_.add_option(kind.option, names_[&kind], kind.help)
        ->type_name(kind.valueName)
        ->check(kind.takesStandardOutput ? checkPath : checkPlace)
        ->group(kind.isReady() ? "Options" : hiddenGroup);
  command_
      .add_option_function<std::string>(
          "--csv-format",
          [this](const std::string& format) {
            options_.csvFormat = format == "rfc4180" ? CsvFormat::rfc4180 : CsvFormat::excelBr;
          },
          "rfc4180 (the default), or excel-br: semicolons, decimal comma")
      ->type_name("FORMAT")
      ->check(CLI::IsMember({"rfc4180", "excel-br"}))
      ->group(hiddenGroup);
  command_.add_flag_callback(
      "--no-check", [this] { options_.isChecked = false; }, "Import without looking for faults first");
}

ImportOptions ImportCall::options() {
  options_.project = project_.options();
  for (const OutputKind& kind : outputKinds())
    if (const std::string& name = names_[&kind]; !name.empty())
      options_.outputs.push_back({&kind, name});
  if (std::count_if(options_.outputs.begin(), options_.outputs.end(), isStandardOutput) > 1)
    throw UsageError("only one output can go to standard output");
  return options_;
}

} // namespace LagomareTools
