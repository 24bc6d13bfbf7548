#include "tools/cli/ProjectCall.h"

namespace LagomareTools {

namespace {

/// Returns why a text is no zone, or an empty string if it is one.
std::string checkZone(const std::string& text) {
  return parseZone(text) ? "" : "\"" + text + "\" is no UTM zone: 1 to 60 followed by N or S, such as 23S";
}

} // namespace

ProjectCall::ProjectCall(CLI::App& command) {
  command.set_version_flag("--version", "lagomare " LAGOMARE_VERSION);
  command
      .add_option("--dialect", dialect_, "Which dialect to read: auto (the default: asks the database), 2010 or 2013")
      ->type_name("DIALECT")
      ->check(CLI::IsMember({"auto", "2010", "2013"}));
  command
      .add_option("--query-executable", queryExecutable_,
                  "A custom query executable (default: the lagomare-query beside the program)")
      ->type_name("PATH")
      ->check(checkPath);
  command
      .add_option("--utm-zone", utmZone_,
                  "UTM zone of the project's coordinates, 1 to 60 followed by N or S (default: 23S)")
      ->type_name("ZONE")
      ->check(checkZone);
  project_ = command.add_option("PROJECT", path_, "The legacy project's database")->type_name("")->check(checkPath);
}

ProjectOptions ProjectCall::options() const {
  ProjectOptions options;
  options.project = path_;
  if (dialect_ != "auto")
    options.dialect = dialect_ == "2010" ? Dialect::of2010 : Dialect::of2013;
  if (!queryExecutable_.empty())
    options.queryExecutable = queryExecutable_;
  options.utmZone = parseZone(utmZone_);
  return options;
}

void addFlag(CLI::App& command, const char* name, bool& value, const char* help) {
  command.add_flag(name, value, help)->multi_option_policy(CLI::MultiOptionPolicy::Throw);
}

std::string checkPath(const std::string& text) { return text.empty() ? "the path is empty" : ""; }

} // namespace LagomareTools
