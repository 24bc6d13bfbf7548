#include "tools/cli/Options.h"

#include "tools/cli/UnexpectedWords.h"
#include "tools/system/Failure.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <map>

namespace LagomareTools {

namespace {

constexpr const char* importFooter = R"(Example:
  lagomare import basin.mdb --json basin.json --geojson basin.geojson

Exit codes: 0 imported, 1 failed, 2 usage error, 3 refused (tactical-planning project), 4 no valid project,
130 cancelled.)";

constexpr const char* appFooter = R"(Example:
  lagomare import basin.mdb --json basin.json

See lagomare import --help for the options.)";

constexpr const char* version = "lagomare " LAGOMARE_VERSION;

/// Not shown in the help.
constexpr const char* hidden = "";

/// Texts of options, before they are converted.
struct ProjectTexts {
  std::string project;
  std::string dialect = "auto";
  std::string utmZone;
  std::string queryExecutable;
};

std::string checkZone(const std::string& text) {
  return parseZone(text) ? "" : "\"" + text + "\" is no UTM zone: 1 to 60 followed by N or S, such as 23S";
}

std::string checkPath(const std::string& text) { return text.empty() ? "the path is empty" : ""; }

std::string checkPlace(const std::string& text) {
  return text == OutputFile::standardOutput ? "it cannot go to standard output" : checkPath(text);
}

/// CLI11 would take the next word for the value.
void requireValues(int argumentCount, const char* const* arguments) {
  for (int at = 1; at < argumentCount && std::string_view(arguments[at]) != "--"; ++at) {
    const std::string_view word = arguments[at];
    if (word.substr(0, 2) == "--" && word.find('=') == word.size() - 1)
      throw UsageError(std::string(word) + " lacks its value");
  }
}

void addProject(CLI::App& command, ProjectTexts& texts) {
  command.set_version_flag("--version", version);
  command
      .add_option("--dialect", texts.dialect,
                  "Which dialect to read: auto (the default: asks the database), 2010 or 2013")
      ->type_name("DIALECT")
      ->check(CLI::IsMember({"auto", "2010", "2013"}));
  command
      .add_option("--query-executable", texts.queryExecutable,
                  "A custom query executable (default: the lagomare-query beside the program)")
      ->type_name("PATH")
      ->check(checkPath);
  command
      .add_option("--utm-zone", texts.utmZone,
                  "UTM zone of the project's coordinates, 1 to 60 followed by N or S (default: 23S)")
      ->type_name("ZONE")
      ->check(checkZone);
  command.add_option("PROJECT", texts.project, "The legacy project's database")->type_name("")->check(checkPath);
}

ProjectOptions convert(const ProjectTexts& texts) {
  ProjectOptions options;
  options.project = texts.project;
  if (texts.dialect != "auto")
    options.dialect = texts.dialect == "2010" ? Dialect::of2010 : Dialect::of2013;
  if (!texts.queryExecutable.empty())
    options.queryExecutable = texts.queryExecutable;
  options.utmZone = parseZone(texts.utmZone);
  return options;
}

void requireProject(const ProjectOptions& options) {
  if (options.project.empty())
    throw UsageError("PROJECT is missing: the project's database");
}

void addFlag(CLI::App& command, const char* name, bool& value, const char* help) {
  command.add_flag(name, value, help)->multi_option_policy(CLI::MultiOptionPolicy::Throw);
}

/// The command `lagomare import`.
class ImportCall {
public:
  explicit ImportCall(CLI::App& app) : command_(*app.add_subcommand("import", "Import one legacy project")) {
    addProject(command_, texts_);
    for (const OutputKind& kind : outputKinds())
      command_.add_option(kind.option, names_[&kind], kind.help)
          ->type_name(kind.valueName)
          ->check(kind.takesStandardOutput ? checkPath : checkPlace)
          ->group(kind.isReady() ? "Options" : hidden);
    command_
        .add_option_function<std::string>(
            "--csv-format",
            [this](const std::string& format) {
              options_.csvFormat = format == "rfc4180" ? CsvFormat::rfc4180 : CsvFormat::excelBr;
            },
            "rfc4180 (the default), or excel-br: semicolons, decimal comma")
        ->type_name("FORMAT")
        ->check(CLI::IsMember({"rfc4180", "excel-br"}))
        ->group(hidden);
    command_
        .add_flag_callback(
            "--no-check", [this] { options_.isChecked = false; }, "Import without looking for faults first")
        ->group(hidden);
    addFlag(command_, "--quiet", options_.isQuiet, "No summary, no progress");
    command_.footer(importFooter);
  }

  [[nodiscard]] CLI::App& command() { return command_; }
  [[nodiscard]] ImportOptions options() {
    options_.project = convert(texts_);
    requireProject(options_.project);
    for (const OutputKind& kind : outputKinds())
      if (const std::string& name = names_[&kind]; !name.empty())
        options_.outputs.push_back({&kind, name});
    if (std::count_if(options_.outputs.begin(), options_.outputs.end(), isStandardOutput) > 1)
      throw UsageError("only one output can go to standard output");
    return options_;
  }

private:
  CLI::App& command_;
  ProjectTexts texts_;
  std::map<const OutputKind*, std::string> names_;
  ImportOptions options_;
};

/// The command `lagomare check`.
class CheckCall {
public:
  explicit CheckCall(CLI::App& app) : command_(*app.add_subcommand("check", "List what is wrong with a project")) {
    command_.group(hidden);
    addProject(command_, texts_);
    command_.add_option("--format", format_, "text (the default) or json")
        ->type_name("FORMAT")
        ->check(CLI::IsMember({"text", "json"}));
    addFlag(command_, "--all", options_.showsAll, "List all faults of each kind, not only the first ten");
    addFlag(command_, "--strict", options_.isStrict, "Warnings fail too");
    addFlag(command_, "--rules", options_.showsRules, "Print every kind of fault and how to mend it");
  }

  [[nodiscard]] CLI::App& command() { return command_; }
  [[nodiscard]] CheckOptions options() {
    options_.project = convert(texts_);
    if (!options_.showsRules)
      requireProject(options_.project);
    options_.isJson = format_ == "json";
    return options_;
  }

private:
  CLI::App& command_;
  ProjectTexts texts_;
  std::string format_;
  CheckOptions options_;
};

std::vector<std::string> optionNames(const CLI::App& command) {
  std::vector<std::string> names;
  for (const CLI::Option* option : command.get_options())
    if (option->get_group() != hidden && !option->get_lnames().empty())
      names.push_back("--" + option->get_lnames().front());
  return names;
}

/// What the parser had no place for, in the order of the call.
std::vector<std::string> extraWords(const CLI::App& command) {
  auto words = command.remaining();
  if (const auto mark = std::find(words.begin(), words.end(), "--"); mark != words.end())
    words.erase(mark);
  return words;
}

void requireNoExtras(const CLI::App& app, const std::vector<const CLI::App*>& commands) {
  std::vector<std::string> names;
  for (const CLI::App* command : commands) {
    if (command->get_group() != hidden)
      names.push_back(command->get_name());
    if (const auto words = extraWords(*command); !words.empty())
      throw UsageError(unexpectedWords(words, optionNames(*command)));
  }
  if (const auto words = extraWords(app); !words.empty())
    throw UsageError(unknownCommand(words, names));
}

} // namespace

Options parseOptions(int argumentCount, const char* const* arguments) {
  CLI::App app("Reads legacy network-modelling projects", "lagomare");
  app.set_version_flag("--version", version);
  app.footer(appFooter);
  app.require_subcommand(0, 1); // a project may be called import
  ImportCall import(app);
  CheckCall check(app);
  for (CLI::App* each : {&app, &import.command(), &check.command()})
    each->allow_extras();
  requireValues(argumentCount, arguments);
  try {
    app.parse(argumentCount, arguments);
  } catch (const CLI::Success& wish) { // help or version
    std::ostringstream text;
    app.exit(wish, text, text);
    return HelpText{text.str()};
  } catch (const CLI::ParseError& error) {
    throw UsageError(error.what());
  }
  requireNoExtras(app, {&import.command(), &check.command()});
  if (import.command().parsed())
    return import.options();
  if (check.command().parsed())
    return check.options();
  throw UsageError("a command is missing, such as lagomare import");
}

} // namespace LagomareTools
