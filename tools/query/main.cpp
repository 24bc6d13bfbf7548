#include "tools/query/Program.h"
#include "tools/system/StandardStreams.h"

int main(int count, char** arguments) {
  LagomareTools::prepareStandardStreams();
  return LagomareQuery::runProgram({arguments + 1, arguments + count});
}
