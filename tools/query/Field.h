#pragma once

#include "tools/query/AnswerFile.h"
#include <cstdint>
#include <sqlite3.h>
#include <string_view>

namespace LagomareQuery {

/// Writes rows as the reader takes them: each field followed by one blank, then a field that the reader discards.
/// This is the only place that turns a value into a field.
class FieldWriter {
public:
  explicit FieldWriter(AnswerFile& answer) : answer_(answer) {}

  /// The current row of a statement that has just been stepped to it.
  void writeRow(sqlite3_stmt* row, int columns);

private:
  void writeText(std::string_view text);
  void writeHexadecimal(std::string_view bytes);

  AnswerFile& answer_;
};

/// Longest text of a number, in bytes: a sign, "0.", 307 zeros and 17 digits.
inline constexpr std::size_t numberRoom = 328;

/// Writes the number's field to `to`, which has numberRoom bytes, and returns the end of it: the shortest text that
/// reads back to the same number without an exponent, of which the reader would take what stands before it for an id.
/// Whole numbers below 9.2e18 are exact; a subnormal is 0; the infinities are "inf" and "-inf", which the reader takes
/// for what they are.
[[nodiscard]] char* writeNumber(char* to, std::int64_t value);
[[nodiscard]] char* writeNumber(char* to, double value);

} // namespace LagomareQuery
