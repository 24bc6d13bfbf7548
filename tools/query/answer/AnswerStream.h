#pragma once

#include "tools/query/answer/AnswerSink.h"
#include <cstdio>
#include <stdexcept>

namespace LagomareQuery {

/// The stream of answers cannot be written: nobody reads it any more, or the disk behind it is full.
class StreamError : public std::runtime_error {
public:
  StreamError(const std::string& text, bool isReaderGone) : std::runtime_error(text), isReaderGone_(isReaderGone) {}

  [[nodiscard]] bool isReaderGone() const { return isReaderGone_; }

private:
  bool isReaderGone_;
};

/// Answers one behind the other in a stream, each with an end line behind its rows. An end line begins with a byte that
/// no row can hold: "\4complete" or "\4error: REASON".
class AnswerStream : public AnswerSink {
public:
  /// Borrows the stream and writes to it without a buffer.
  explicit AnswerStream(std::FILE* stream);

  /// Throws StreamError, as the others do.
  void write(std::string_view bytes) override;

  /// All rows of the answer are written.
  void complete() { write("\4complete\n"); }

  /// The rows written so far are not the whole answer. The reason may be any text.
  void fail(std::string_view reason);

private:
  std::FILE* stream_;
  char lastByte_ = '\n';
};

} // namespace LagomareQuery
