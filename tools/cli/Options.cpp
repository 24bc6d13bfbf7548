#include "tools/cli/Options.h"

#include "tools/system/Failure.h"
#include "tools/system/FileWriter.h"

#include <CLI/CLI.hpp>
#include <charconv>
#include <fmt/format.h>
#include <unistd.h>

namespace LagomareTools {

namespace {

constexpr const char* example = R"(Example:
  lagomare import basin.mdb --json basin.json --geojson basin.geojson

Exit codes: 0 imported, 1 failed, 2 wrong call, 3 refused (tactical-planning project), 4 no valid project, 130 cancelled.)";

std::optional<UtmZone> parseZone(const std::string& text) {
  UtmZone zone{0, Hemisphere::South};
  const char* const end = text.data() + text.size();
  const auto number = std::from_chars(text.data(), end, zone.number);
  if (number.ec != std::errc() || zone.number < 1 || zone.number > 60 || end - number.ptr != 1)
    return std::nullopt;
  const char letter = *number.ptr;
  if (letter == 'N' || letter == 'n')
    zone.hemisphere = Hemisphere::North;
  else if (letter != 'S' && letter != 's')
    return std::nullopt;
  return zone;
}

/// The texts of the options that stand for something else.
struct RawOptions {
  std::string dialect;
  std::string utmZone;
};

std::string checkZone(const std::string& text) {
  return parseZone(text) ? "" : "\"" + text + "\" is no UTM zone: 1 to 60 followed by N or S, such as 23S";
}

std::string checkPath(const std::string& text) { return text.empty() ? "the path is empty" : ""; }

/// The parser would take the next word for the value.
void requireValues(int argumentCount, char** arguments) {
  for (int at = 1; at < argumentCount && std::string_view(arguments[at]) != "--"; ++at) {
    const std::string_view word = arguments[at];
    if (word.substr(0, 2) == "--" && word.find('=') == word.size() - 1)
      throw UsageError(std::string(word) + " lacks its value");
  }
}

void addOutputs(CLI::App& command, ImportOptions& options) {
  command.add_option("--json", options.json, "Write the whole scenario; - is standard output")->type_name("FILE");
  command.add_option("--geojson", options.geojson, "Write the network for a GIS; - is standard output")
      ->type_name("FILE");
  command.add_option("--csv", options.csv, "Write elements.csv, links.csv, series.csv and curves.csv into DIR")
      ->type_name("DIR");
}

void describeImport(CLI::App& command, ImportOptions& options, RawOptions& raw) {
  command.add_option("PROJECT", options.project, "The legacy project's database")->required()->type_name("");
  command
      .add_option("--dialect", raw.dialect,
                  "Which dialect to read: auto (the default: asks the database), 2010 or 2013")
      ->type_name("DIALECT")
      ->check(CLI::IsMember({"auto", "2010", "2013"}));
  command
      .add_option("--query-executable", options.queryExecutable,
                  "The external query executable (default: the lagomare-query beside the program)")
      ->type_name("PATH");
  command
      .add_option("--utm-zone", raw.utmZone,
                  "UTM zone of the project's coordinates, 1 to 60 followed by N or S (default: 23S)")
      ->type_name("ZONE")
      ->check(checkZone);
  addOutputs(command, options);
  command.add_flag("--quiet", options.isQuiet, "No summary, no progress")
      ->multi_option_policy(CLI::MultiOptionPolicy::Throw);
  for (CLI::Option* option : command.get_options())
    if (option->get_type_name() != "ZONE" && option->get_expected_max() > 0)
      option->check(checkPath);
  command.footer(example);
}

void printOnStandardOutput(const std::string& text) {
  FileWriter out(STDOUT_FILENO, "standard output");
  out.write(text);
  out.flush();
}

} // namespace

std::string textOf(const UtmZone& zone) {
  return std::to_string(zone.number) + (zone.hemisphere == Hemisphere::North ? NorthType().code : SouthType().code);
}

std::optional<ImportOptions> parseOptions(int argumentCount, char** arguments) {
  ImportOptions options;
  RawOptions raw;
  const std::string version = std::string("lagomare ") + LAGOMARE_VERSION;
  CLI::App app("Reads legacy network-modelling projects", "lagomare");
  app.set_version_flag("--version", version);
  app.footer("Example:\n  lagomare import basin.mdb --json basin.json\n\nlagomare import --help tells the options.");
  app.require_subcommand(0, 1); // a project may be called import
  CLI::App& import = *app.add_subcommand("import", "Import one legacy project and say what it holds");
  import.set_version_flag("--version", version);
  describeImport(import, options, raw);
  requireValues(argumentCount, arguments);
  try {
    app.parse(argumentCount, arguments);
  } catch (const CLI::Success& wish) { // help or version
    std::ostringstream text;
    app.exit(wish, text, text);
    printOnStandardOutput(text.str());
    return std::nullopt;
  } catch (const CLI::ParseError& error) {
    throw UsageError(error.what());
  }
  if (!import.parsed())
    throw UsageError("a command is missing; the one there is, is import");
  options.program = arguments[0];
  if (raw.dialect == "2010" || raw.dialect == "2013")
    options.dialect = raw.dialect == "2010" ? Dialect::of2010 : Dialect::of2013;
  if (!raw.utmZone.empty())
    options.utmZone = parseZone(raw.utmZone);
  return options;
}

} // namespace LagomareTools
