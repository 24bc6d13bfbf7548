#include "tools/cli/Options.h"

#include "tools/cli/CheckCall.h"
#include "tools/cli/ImportCall.h"
#include "tools/cli/UnexpectedWords.h"
#include "tools/system/Failure.h"

#include <CLI/CLI.hpp>
#include <algorithm>

namespace LagomareTools {

namespace {

constexpr const char* appFooter = R"(Examples:
  lagomare check basin.mdb
  lagomare import basin.mdb --json basin.json

See lagomare check --help and lagomare import --help for the options.)";

/// CLI11 would take the next word for the value.
void requireValues(int argumentCount, const char* const* arguments) {
  for (int at = 1; at < argumentCount && std::string_view(arguments[at]) != "--"; ++at) {
    const std::string_view word = arguments[at];
    if (word.substr(0, 2) == "--" && word.find('=') == word.size() - 1)
      throw UsageError(std::string(word) + " lacks its value");
  }
}

std::vector<std::string> optionNames(const CLI::App& command) {
  std::vector<std::string> names;
  for (const CLI::Option* option : command.get_options())
    if (option->get_group() != hiddenGroup && !option->get_lnames().empty())
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
    if (command->get_group() != hiddenGroup)
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
  app.set_version_flag("--version", "lagomare " LAGOMARE_VERSION);
  app.footer(appFooter);
  app.require_subcommand(0, 1); // a project may be called import
  app.allow_extras();           // commands inherit it
  ImportCall import(app);
  CheckCall check(app);
  const std::vector<const CLI::App*> commands{&import.command(), &check.command()};
  requireValues(argumentCount, arguments);
  try {
    app.parse(argumentCount, arguments);
  } catch (const CLI::Success& wish) { // help or version
    std::ostringstream text;
    app.exit(wish, text, text);
    return HelpText{text.str()};
  } catch (const CLI::ParseError& error) {
    requireNoExtras(app, commands);
    throw UsageError(error.what());
  }
  requireNoExtras(app, commands);
  if (import.command().parsed())
    return import.options();
  if (check.command().parsed())
    return check.options();
  throw UsageError("a command is missing, such as lagomare import");
}

} // namespace LagomareTools
