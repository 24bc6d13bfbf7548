#pragma once

#include "tools/query/answer/AnswerSink.h"

namespace LagomareQuery {

/// Answers one behind the other on standard output, each with an end line behind its rows. An end line begins with a
/// byte that no row can hold: "\4complete" or "\4error: REASON". All functions throw Failure if standard output cannot
/// be written, and ReaderHasGone.
class AnswerStream : public AnswerSink {
public:
  void write(std::string_view bytes) override;

  /// All rows of the answer are written.
  void complete() { write("\4complete\n"); }

  /// The rows written so far are not the whole answer. The reason may be any text.
  void fail(std::string_view reason);

private:
  char lastByte_ = '\n';
};

} // namespace LagomareQuery
