#pragma once

#include "tools/query/answer/AnswerBuffer.h"
#include <sqlite3.h>
#include <string_view>

namespace LagomareQuery {

/// Writes rows as importers read them: each field is followed by one blank, and a last field, a dot, is ignored by the
/// importer. All values are converted to fields here.
class RowWriter {
public:
  /// `sink` must outlive the writer.
  explicit RowWriter(AnswerSink& sink) : buffer_(sink) {}

  /// Writes the current row of a statement.
  void writeRow(sqlite3_stmt* row, int columns);

  /// Hands all rows to the sink. Must be called after the last row.
  void flush() { buffer_.flush(); }

private:
  void writeText(std::string_view text);
  void writeHexadecimal(std::string_view bytes);

  AnswerBuffer buffer_;
};

} // namespace LagomareQuery
