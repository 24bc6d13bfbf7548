#include "tools/query/answer/AnswerStream.h"

#include "tools/system/StandardStreams.h"

namespace LagomareQuery {

void AnswerStream::write(std::string_view bytes) {
  LagomareTools::writeToStandardOutput(bytes);
  if (!bytes.empty())
    lastByte_ = bytes.back();
}

void AnswerStream::fail(std::string_view reason) {
  const char* const unfinishedRow = lastByte_ == '\n' ? "" : "\n";
  write(unfinishedRow + ("\4error: " + inOneLine(reason)) + "\n");
}

} // namespace LagomareQuery
