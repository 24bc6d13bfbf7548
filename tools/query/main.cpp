#include "tools/query/Program.h"

int main(int count, char** arguments) { return LagomareQuery::runProgram({arguments + 1, arguments + count}); }
