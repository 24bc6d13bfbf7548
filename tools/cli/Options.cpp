#include "tools/cli/Options.h"

#include "tools/system/Failure.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <functional>
#include <sstream>
#include <string_view>
#include <utility>

namespace LagomareTools {

namespace {

constexpr const char* version = "lagomare " LAGOMARE_VERSION;

constexpr const char* appFooter = R"(Examples:
  lagomare check basin.mdb
  lagomare import basin.mdb --json basin.json

See lagomare check --help and lagomare import --help for the options.)";

constexpr const char* importFooter = R"(Example:
  lagomare import basin.mdb --json basin.json --geojson basin.geojson

Exit codes: 0 imported, 1 failed, 2 usage error, 3 refused (tactical-planning project), 4 no valid project,
130 cancelled.)";

constexpr const char* checkFooter = R"(Example:
  lagomare check basin.mdb

Exit codes: 0 no error (with --strict: no warning either), 1 there are, 2 usage error, 130 cancelled.)";

// What follows returns why a text is no such value, or an empty string if it is one.

std::string checkZone(const std::string& text) {
  return parseZone(text)
             ? ""
             : "\"" + text + "\" is no UTM zone: 1 to 60 followed by N, S or a latitude band, such as 23S or 23K";
}

std::string checkPath(const std::string& text) { return text.empty() ? "the path is empty" : ""; }

std::string checkPlace(const std::string& text) {
  return text == OutputFile::standardOutput ? "it cannot go to standard output" : checkPath(text);
}

/// Adds an option that takes one of these words.
CLI::Option* addChoice(CLI::App& command, const char* name, std::vector<std::string> words, const char* help,
                       const std::function<void(const std::string&)>& choose) {
  return command.add_option_function<std::string>(name, choose, help)
      ->type_name("WORD")
      ->check(CLI::IsMember(std::move(words)));
}

void addFlag(CLI::App& command, const char* name, bool& value, const char* help) {
  command.add_flag(name, value, help)->multi_option_policy(CLI::MultiOptionPolicy::Throw);
}

CLI::Option* addProject(CLI::App& command, ProjectOptions& options) {
  command.set_version_flag("--version", version);
  addChoice(command, "--dialect", {"auto", "2010", "2013"},
            "Which dialect to read; auto (the default) asks the database", [&options](const std::string& word) {
              if (word != "auto")
                options.dialect = word == "2010" ? Dialect::of2010 : Dialect::of2013;
            });
  command
      .add_option("--query-executable", options.queryExecutable,
                  "A custom query executable (default: the lagomare-query beside the program)")
      ->type_name("PATH")
      ->check(checkPath);
  command
      .add_option_function<std::string>(
          "--utm-zone", [&options](const std::string& text) { options.utmZone = parseZone(text); },
          "UTM zone of the project's coordinates: 1 to 60, then N, S or a latitude band (default: 23S)")
      ->type_name("ZONE")
      ->check(checkZone);
  return command.add_option("PROJECT", options.project, "The legacy project's database")
      ->type_name("")
      ->check(checkPath);
}

void addImport(CLI::App& app, ImportOptions& options) {
  CLI::App& command = *app.add_subcommand("import", "Import one legacy project");
  addProject(command, options.project)->required();
  for (const OutputKind& kind : outputKinds())
    command
        .add_option_function<std::string>(
            kind.option,
            [&](const std::string& name) {
              options.outputs.push_back({&kind, name});
            },
            kind.help)
        ->type_name(kind.valueName)
        ->check(kind.takesStandardOutput ? checkPath : checkPlace);
  addChoice(command, "--csv-format", {"rfc4180", "excel-br"},
            "rfc4180 (the default), or excel-br: semicolons, decimal comma", [&options](const std::string& word) {
              options.csvFormat = word == "rfc4180" ? CsvFormat::rfc4180 : CsvFormat::excelBr;
            });
  command.add_flag_callback(
      "--no-check", [&options] { options.isChecked = false; }, "Import without looking for faults first");
  addFlag(command, "--quiet", options.isQuiet, "No summary, no progress");
  command.footer(importFooter);
}

void addCheck(CLI::App& app, CheckOptions& options) {
  CLI::App& command = *app.add_subcommand("check", "List what is wrong with a project");
  addProject(command, options.project);
  addChoice(command, "--format", {"text", "json"}, "text (the default) or json",
            [&options](const std::string& word) { options.isJson = word == "json"; });
  addFlag(command, "--all", options.showsAll, "List all faults of each kind, not only the first ten");
  addFlag(command, "--strict", options.isStrict, "Warnings fail too");
  addFlag(command, "--rules", options.showsRules, "Print every kind of fault and how to mend it; needs no PROJECT");
  command.footer(checkFooter);
}

/// CLI11 would take the next word for the value.
void requireValues(int argumentCount, const char* const* arguments) {
  for (int at = 1; at < argumentCount && std::string_view(arguments[at]) != "--"; ++at) {
    const std::string_view word = arguments[at];
    if (word.substr(0, 2) == "--" && word.find('=') == word.size() - 1)
      throw UsageError(std::string(word) + " lacks its value");
  }
}

/// Throws UsageError if the parser had no place for some words, and names them in the order of the call.
void requireNoExtras(const CLI::App& app) {
  const auto commands = app.get_subcommands();
  const bool isForCommand = !commands.empty() && app.remaining().empty();
  std::vector<std::string> words = (isForCommand ? *commands.front() : app).remaining();
  if (const auto mark = std::find(words.begin(), words.end(), "--"); mark != words.end())
    words.erase(mark);
  if (words.empty())
    return;
  std::string all;
  for (const std::string& word : words)
    all += " \"" + word + '"';
  const bool isOption = words.front().front() == '-';
  if (!isForCommand)
    throw UsageError("not a command:" + all + "; did you mean: lagomare import " + (isOption ? "…" : words.front()));
  throw UsageError("unexpected:" + all +
                   (isOption ? "; there is no such option; a path that begins with a dash goes behind --"
                             : "; one project at a time; a path that holds blanks needs quotes"));
}

} // namespace

Options parseOptions(int argumentCount, const char* const* arguments) {
  ImportOptions import;
  CheckOptions check;
  CLI::App app("Reads legacy network-modelling projects", "lagomare");
  app.set_version_flag("--version", version);
  app.footer(appFooter);
  app.require_subcommand(0, 1); // a project may be called import
  app.allow_extras();           // commands inherit it
  addImport(app, import);
  addCheck(app, check);
  requireValues(argumentCount, arguments);
  try {
    app.parse(argumentCount, arguments);
  } catch (const CLI::Success& wish) { // help or version
    std::ostringstream text;
    app.exit(wish, text, text);
    return HelpText{text.str()};
  } catch (const CLI::ParseError& error) {
    requireNoExtras(app);
    throw UsageError(error.what());
  }
  requireNoExtras(app);
  if (std::count_if(import.outputs.begin(), import.outputs.end(), isStandardOutput) > 1)
    throw UsageError("only one output can go to standard output");
  if (app.got_subcommand("import"))
    return import;
  if (!app.got_subcommand("check"))
    throw UsageError("a command is missing, such as lagomare import");
  if (check.project.project.empty() && !check.showsRules)
    throw UsageError("PROJECT is required");
  return check;
}

} // namespace LagomareTools
