#include "tools/query/Program.h"
#include <csignal>

int main(int count, char** arguments) {
#ifdef SIGXFSZ
  // A file that may not grow any more is an error like a full disk, not the program's end.
  static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
#endif
  return LagomareQuery::runProgram({arguments + 1, arguments + count});
}
