// Parses an answer file once, for callgrind.

#include "access/Answer.h"
#include "bench/plain/PlainRows.h"

#include <fstream>
#include <iostream>
#include <string>
#include <unistd.h>

using namespace Lagomare;

int main(int count, char** words) {
  const std::string parser = count == 3 ? words[1] : "";
  if (parser == "plain") {
    const auto rows = Plain::readRows(words[2]);
    _exit(rows.empty() ? 1 : 0); // without destroying them
  }
  if (parser == "ours") {
    std::ifstream answer(words[2], std::ios::binary);
    const auto rows = parseRows(answer);
    _exit(rows.empty() ? 1 : 0);
  }
  std::cerr << "usage: lagomare-bench-rows plain|ours ANSWER_FILE\n";
  return 2;
}
