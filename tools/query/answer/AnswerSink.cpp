#include "tools/query/answer/AnswerSink.h"

#include <algorithm>

namespace LagomareQuery {

std::string inOneLine(std::string_view text) {
  std::string line(text);
  std::replace_if(
      line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
  return line;
}

} // namespace LagomareQuery
