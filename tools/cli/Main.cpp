#include "tools/cli/ImportCommand.h"
#include "tools/project/QueryLauncher.h"
#include "tools/system/Failure.h"
#include "tools/system/Supervisor.h"

#include <csignal>
#include <fcntl.h>
#include <new>
#include <unistd.h>

namespace {

using namespace LagomareTools;

constexpr int success = 0;
constexpr int failure = 1;
constexpr int wrongCall = 2;

/// A stream that the caller closed would be the next file that is opened. Writing to one of these is an error again.
void occupyStandardStreams() {
  for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
    if (::fcntl(descriptor, F_GETFD) < 0)
      static_cast<void>(::open("/dev/null", O_RDONLY) == descriptor);
}

int runCommand(int argumentCount, char** arguments) {
  try {
    const Options options = parseOptions(argumentCount, arguments);
    if (const auto* const help = std::get_if<HelpText>(&options)) {
      FileWriter out(STDOUT_FILENO, "standard output");
      out.write(help->text);
      out.flush();
      return success;
    }
    if (const auto* const import = std::get_if<ImportOptions>(&options))
      return importProject(*import, arguments[0]);
    throw Failure("lagomare check is not there yet");
  } catch (const UsageError& error) {
    printError(std::string(error.what()) + " (see lagomare import --help)");
    return wrongCall;
  } catch (const std::bad_alloc&) {
    printError("there is not enough memory");
  } catch (const std::exception& error) {
    printError(error.what());
  }
  return failure;
}

} // namespace

int main(int argumentCount, char** arguments) {
  occupyStandardStreams();
  static_cast<void>(std::signal(SIGCHLD, SIG_DFL)); // where it is ignored no child's end can be waited for
  static_cast<void>(std::signal(SIGPIPE, SIG_IGN)); // a closed pipe is an error of writing,
  static_cast<void>(std::signal(SIGXFSZ, SIG_IGN)); // and so is a file that grows larger than allowed
  if (argumentCount > 0 && isLauncher(arguments[0])) {
    launchQuery(arguments);
    ::_exit(success); // once per query: taking the static tables down would cost as much as the query
  }
  return argumentCount > 0 ? supervise([=] { return runCommand(argumentCount, arguments); }) : wrongCall;
}
