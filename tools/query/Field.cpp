#include "tools/query/Field.h"

#include "tools/query/Utf8.h"
#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace LagomareQuery {

namespace {

constexpr std::string_view noBreakSpace = "\xC2\xA0";
constexpr std::string_view replacementCharacter = "\xEF\xBF\xBD";
constexpr std::string_view rowEnd = ".\n";     // the field that the reader discards
constexpr std::ptrdiff_t usualNumberRoom = 32; // bytes
constexpr std::size_t chunkBytes = AnswerFile::largestRoom / 4;

char* append(char* to, std::string_view bytes) { return std::copy(bytes.begin(), bytes.end(), to); }

/// Bytes that the text begins with and that are written as they are, each a character.
std::size_t plainLength(std::string_view text) {
  const char* const end = text.data() + text.size();
  const char* const special =
      std::find_if(text.data(), end, [](char character) { return character <= ' ' || character >= 0x7F; });
  return static_cast<std::size_t>(special - text.data());
}

/// Blanks and line breaks would end the field or the row.
bool mustBecomeNoBreakSpace(std::string_view character) {
  const auto first = static_cast<unsigned char>(character.front());
  if (character.size() == 1)
    return first <= ' ' || first == 0x7F;
  return character.size() == 2 && first == 0xC2 && static_cast<unsigned char>(character[1]) < 0xA0;
}

std::string_view bytesOf(sqlite3_value* value, const void* data) {
  return {static_cast<const char*>(data), data == nullptr ? 0 : static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

/// Whether the value has no more than four decimals and fifteen digits, and then 10,000 times the value. There is no
/// shorter text that reads back to the same number then, for texts of up to fifteen digits mean as many different
/// doubles; and finding it takes a fraction of what the shortest text of any double takes.
bool isInTenThousandths(double value, std::int64_t& tenThousandths) {
  constexpr double limit = 1e15;
  const double scaled = value * 1e4;
  if (!(std::abs(scaled) < limit))
    return false;
  tenThousandths = static_cast<std::int64_t>(scaled + (scaled < 0 ? -0.5 : 0.5));
  return static_cast<double>(tenThousandths) / 1e4 == value;
}

char* writeTenThousandths(char* to, std::int64_t value) {
  if (value < 0)
    *to++ = '-';
  const std::int64_t magnitude = std::abs(value);
  to = writeNumber(to, magnitude / 10000);
  if (magnitude % 10000 == 0)
    return to;
  *to++ = '.';
  const auto decimals = static_cast<unsigned>(magnitude % 10000);
  for (const unsigned digit : {decimals / 1000, decimals / 100 % 10, decimals / 10 % 10, decimals % 10})
    *to++ = static_cast<char>('0' + digit);
  while (to[-1] == '0')
    --to;
  return to;
}

} // namespace

char* writeNumber(char* to, std::int64_t value) { return std::to_chars(to, to + numberRoom, value).ptr; }

char* writeNumber(char* to, double value) {
  constexpr double integerLimit = 9.2e18;
  std::int64_t tenThousandths = 0;
  if (isInTenThousandths(value, tenThousandths))
    return writeTenThousandths(to, tenThousandths);
  const double magnitude = std::abs(value);
  if (magnitude < integerLimit && std::trunc(value) == value)
    return writeNumber(to, static_cast<std::int64_t>(value));
  if (magnitude < std::numeric_limits<double>::min())
    return append(to, "0"); // subnormal: the reader takes it for out of range
  return std::to_chars(to, to + numberRoom, value, std::chars_format::fixed).ptr;
}

void FieldWriter::writeRow(sqlite3_stmt* row, int columns) {
  // For usual numbers in all columns and an unusual one in one of them.
  const std::size_t roomForNumbers =
      static_cast<std::size_t>(columns * (usualNumberRoom + 1)) + numberRoom + rowEnd.size();
  char* to = answer_.room(roomForNumbers);
  for (int column = 0; column < columns; ++column) {
    sqlite3_value* value = sqlite3_column_value(row, column); // unprotected: read by this thread alone
    const int type = sqlite3_value_type(value);
    if (type == SQLITE_INTEGER) {
      to = writeNumber(to, std::int64_t{sqlite3_value_int64(value)});
    } else if (type == SQLITE_FLOAT) {
      const char* begin = to;
      to = writeNumber(to, sqlite3_value_double(value));
      if (to - begin > usualNumberRoom) {
        answer_.taken(to);
        to = answer_.room(roomForNumbers);
      }
    } else if (type != SQLITE_NULL) {
      answer_.taken(to);
      type == SQLITE_TEXT ? writeText(bytesOf(value, sqlite3_value_text(value)))
                          : writeHexadecimal(bytesOf(value, sqlite3_value_blob(value)));
      to = answer_.room(roomForNumbers);
    }
    *to++ = ' ';
  }
  answer_.taken(append(to, rowEnd));
}

void FieldWriter::writeText(std::string_view text) {
  while (!text.empty()) {
    std::string_view chunk = text.substr(0, chunkBytes);
    char* to = answer_.room(chunk.size() + replacementCharacter.size());
    const std::size_t plain = plainLength(chunk);
    to = append(to, chunk.substr(0, plain));
    text.remove_prefix(plain);
    if (plain < chunk.size()) {
      const std::size_t length = utf8CharacterLength(text);
      const std::string_view character = text.substr(0, std::max<std::size_t>(length, 1));
      to = append(to, length == 0                         ? replacementCharacter
                      : mustBecomeNoBreakSpace(character) ? noBreakSpace
                                                          : character);
      text.remove_prefix(character.size());
    }
    answer_.taken(to);
  }
}

void FieldWriter::writeHexadecimal(std::string_view bytes) {
  static constexpr std::string_view digits = "0123456789ABCDEF";
  while (!bytes.empty()) {
    const std::string_view chunk = bytes.substr(0, chunkBytes);
    char* to = answer_.room(2 * chunk.size());
    for (const char byte : chunk) {
      *to++ = digits[static_cast<unsigned char>(byte) >> 4];
      *to++ = digits[static_cast<unsigned char>(byte) & 0x0F];
    }
    answer_.taken(to);
    bytes.remove_prefix(chunk.size());
  }
}

} // namespace LagomareQuery
