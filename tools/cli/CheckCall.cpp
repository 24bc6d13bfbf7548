#include "tools/cli/CheckCall.h"

#include "tools/system/Failure.h"

namespace LagomareTools {

namespace {

constexpr const char* checkFooter = R"(Example:
  lagomare check basin.mdb

Exit codes: 0 no error (with --strict: no warning either), 1 there are, 2 usage error, 130 cancelled.)";

} // namespace

CheckCall::CheckCall(CLI::App& app)
    : command_(*app.add_subcommand("check", "List what is wrong with a project")), project_(command_) {
  command_.add_option("--format", format_, "text (the default) or json")
      ->type_name("FORMAT")
      ->check(CLI::IsMember({"text", "json"}));
  addFlag(command_, "--all", options_.showsAll, "List all faults of each kind, not only the first ten");
  addFlag(command_, "--strict", options_.isStrict, "Warnings fail too");
  addFlag(command_, "--rules", options_.showsRules, "Print every kind of fault and how to mend it; needs no PROJECT");
  command_.footer(checkFooter);
}

CheckOptions CheckCall::options() {
  options_.project = project_.options();
  if (options_.project.project.empty() && !options_.showsRules)
    throw UsageError("PROJECT is required");
  options_.isJson = format_ == "json";
  return options_;
}

} // namespace LagomareTools
