#pragma once

#include "tools/query/answer/AnswerBuffer.h"
#include <sqlite3.h>

namespace LagomareQuery {

/// Writes rows as the reader takes them: each field followed by one blank, then a field that the reader discards.
/// This is the only place that turns a value into a field.
class RowWriter {
public:
  /// `sink` must outlive the writer.
  explicit RowWriter(AnswerSink& sink) : buffer_(sink) {}

  /// Writes the current row of a statement that has just been stepped to it.
  void writeRow(sqlite3_stmt* row, int columns);

  /// Hands all rows written so far to the sink; without it the last ones are lost.
  void flush() { buffer_.flush(); }

private:
  void writeText(std::string_view text);
  void writeHexadecimal(std::string_view bytes);

  AnswerBuffer buffer_;
};

} // namespace LagomareQuery
