#pragma once

#include "tools/query/answer/AnswerSink.h"

#include <string_view>

namespace LagomareQuery {

/// Writes answers to standard output. After the rows of each answer comes an end line, which begins with a byte that no
/// row contains: "\4complete" or "\4error: REASON". All functions throw Failure if standard output cannot be written,
/// and ReaderHasGone.
class AnswerStream : public AnswerSink {
public:
  void write(std::string_view bytes) override;

  /// Call it after the last row.
  void complete() { write("\4complete\n"); }

  /// Ends an answer that is not complete. The reason may be any text.
  void fail(std::string_view reason);

private:
  char lastByte_ = '\n';
};

} // namespace LagomareQuery
