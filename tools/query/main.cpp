#include "tools/query/Program.h"
#include <csignal>

int main(int count, char** arguments) {
#ifdef SIGXFSZ
  static_cast<void>(
      std::signal(SIGXFSZ, SIG_IGN)); // a file that may not grow is an error like a full disk, not the end
#endif
  return LagomareQuery::runProgram({arguments + 1, arguments + count});
}
