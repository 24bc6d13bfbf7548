#include "tools/cli/CheckCommand.h"
#include "tools/cli/ImportCommand.h"
#include "tools/system/Failure.h"
#include "tools/system/Interruption.h"
#include "tools/system/StandardStreams.h"

#include <cstdio>
#include <exception>
#include <new>
#include <string>
#include <variant>

namespace {

using namespace LagomareTools;

constexpr int success = 0;
constexpr int failure = 1;
constexpr int usageError = 2;

int runCommand(const Options& options) {
  if (const auto* const help = std::get_if<HelpText>(&options)) {
    writeToStandardOutput(help->text);
    return success;
  }
  if (const auto* const import = std::get_if<ImportOptions>(&options))
    return importProject(*import);
  return runCheck(std::get<CheckOptions>(options));
}

} // namespace

int main(int argumentCount, char** arguments) {
  const std::string command = argumentCount > 1 && arguments[1] == std::string("check") ? "check" : "import";
  prepareStandardStreams();
  try {
    const Interruption interruption;
    return runCommand(parseOptions(argumentCount, arguments));
  } catch (const Interrupted&) {
    std::fputs(command == "check" ? "lagomare: cancelled\n" : "lagomare: cancelled; the outputs are as they were\n",
               stderr);
    return Interruption::exitCode;
  } catch (const ReaderHasGone&) {
    endAsReaderHasGone();
  } catch (const UsageError& error) {
    printError(std::string(error.what()) + " (see lagomare " + command + " --help)");
    return usageError;
  } catch (const std::bad_alloc&) {
    printError("there is not enough memory");
  } catch (const std::exception& error) {
    printError(error.what());
  }
  return failure;
}
