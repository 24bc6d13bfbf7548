#include "tools/query/answer/RowWriter.h"

#include "tools/query/answer/NumberText.h"
#include "tools/system/Utf8.h"
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>

namespace LagomareQuery {

namespace {

constexpr std::string_view noBreakSpace = "\xC2\xA0";
constexpr std::string_view replacementCharacter = "\xEF\xBF\xBD";
constexpr std::string_view rowEnd = ".\n";     // the field that importers ignore
constexpr std::ptrdiff_t usualNumberRoom = 32; // bytes
constexpr std::size_t chunkBytes = std::size_t{32} * 1024;

char* append(char* to, std::string_view bytes) { return std::copy(bytes.begin(), bytes.end(), to); }

/// How many bytes at the beginning of the text are written unchanged.
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

/// Returns the bytes of a text or, for any other `type`, of a binary value.
std::string_view bytesOf(sqlite3_value* value, int type) {
  const void* const data = type == SQLITE_TEXT ? sqlite3_value_text(value) : sqlite3_value_blob(value);
  const auto size = static_cast<std::size_t>(sqlite3_value_bytes(value));
  if (data == nullptr && (type == SQLITE_TEXT || size != 0))
    throw std::bad_alloc(); // otherwise only an empty binary value has no address
  return {static_cast<const char*>(data), size};
}

} // namespace

void RowWriter::writeRow(sqlite3_stmt* row, int columns) {
  // Enough for usual numbers in all columns and one long number.
  const std::size_t roomForNumbers =
      static_cast<std::size_t>(columns * (usualNumberRoom + 1)) + numberRoom + rowEnd.size();
  char* to = buffer_.room(roomForNumbers);
  for (int column = 0; column < columns; ++column) {
    sqlite3_value* value = sqlite3_column_value(row, column); // unprotected, but used by one thread only
    const int type = sqlite3_value_type(value);
    if (type == SQLITE_INTEGER) {
      to = writeNumber(to, std::int64_t{sqlite3_value_int64(value)});
    } else if (type == SQLITE_FLOAT) {
      const char* begin = to;
      to = writeNumber(to, sqlite3_value_double(value));
      if (to - begin > usualNumberRoom) {
        buffer_.taken(to);
        to = buffer_.room(roomForNumbers);
      }
    } else if (type != SQLITE_NULL) {
      buffer_.taken(to);
      const std::string_view bytes = bytesOf(value, type);
      type == SQLITE_TEXT ? writeText(bytes) : writeHexadecimal(bytes);
      to = buffer_.room(roomForNumbers);
    }
    *to++ = ' ';
  }
  buffer_.taken(append(to, rowEnd));
}

void RowWriter::writeText(std::string_view text) {
  while (!text.empty()) {
    std::string_view chunk = text.substr(0, chunkBytes);
    char* to = buffer_.room(chunk.size() + replacementCharacter.size());
    const std::size_t plain = plainLength(chunk);
    to = append(to, chunk.substr(0, plain));
    text.remove_prefix(plain);
    if (plain < chunk.size()) {
      const std::size_t length = LagomareTools::utf8CharacterLength(text);
      const std::string_view character = text.substr(0, std::max<std::size_t>(length, 1));
      to = append(to, length == 0                         ? replacementCharacter
                      : mustBecomeNoBreakSpace(character) ? noBreakSpace
                                                          : character);
      text.remove_prefix(character.size());
    }
    buffer_.taken(to);
  }
}

void RowWriter::writeHexadecimal(std::string_view bytes) {
  static constexpr std::string_view digits = "0123456789ABCDEF";
  while (!bytes.empty()) {
    const std::string_view chunk = bytes.substr(0, chunkBytes);
    char* to = buffer_.room(2 * chunk.size());
    for (const char byte : chunk) {
      *to++ = digits[static_cast<unsigned char>(byte) >> 4];
      *to++ = digits[static_cast<unsigned char>(byte) & 0x0F];
    }
    buffer_.taken(to);
    bytes.remove_prefix(chunk.size());
  }
}

} // namespace LagomareQuery
