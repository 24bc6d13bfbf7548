#include "tools/query/answer/AnswerStream.h"

#include <cerrno>
#include <system_error>

namespace LagomareQuery {

AnswerStream::AnswerStream(std::FILE* stream) : stream_(stream) {
  static_cast<void>(std::setvbuf(stream_, nullptr, _IONBF, 0));
}

void AnswerStream::write(std::string_view bytes) {
  if (bytes.empty())
    return;
  errno = 0;
  if (std::fwrite(bytes.data(), 1, bytes.size(), stream_) != bytes.size()) {
    const int error = errno;
    throw StreamError("standard output cannot be written: " + std::generic_category().message(error), error == EPIPE);
  }
  lastByte_ = bytes.back();
}

void AnswerStream::fail(std::string_view reason) {
  const char* const unfinishedRow = lastByte_ == '\n' ? "" : "\n";
  write(unfinishedRow + ("\4error: " + inOneLine(reason)) + "\n");
}

} // namespace LagomareQuery
