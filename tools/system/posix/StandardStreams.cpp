#include "tools/system/StandardStreams.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace LagomareTools {

void prepareStandardStreams() {
  for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
    if (::fcntl(descriptor, F_GETFD) < 0)
      static_cast<void>(::open("/dev/null", O_RDONLY) == descriptor); // writing to it still fails
  for (const int signal : {SIGPIPE, SIGXFSZ})
    static_cast<void>(std::signal(signal, SIG_IGN));
}

void endAsReaderHasGone() {
  static_cast<void>(std::signal(SIGPIPE, SIG_DFL));
  static_cast<void>(std::raise(SIGPIPE));
  std::_Exit(EXIT_FAILURE);
}

bool isErrorATerminal() { return ::isatty(STDERR_FILENO) != 0; }

} // namespace LagomareTools
