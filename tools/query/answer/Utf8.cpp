#include "tools/query/answer/Utf8.h"

namespace LagomareQuery {

namespace {

constexpr std::uint32_t firstSurrogate = 0xD800;
constexpr std::uint32_t lastSurrogate = 0xDFFF;
constexpr std::uint32_t lastCharacter = 0x10FFFF;

bool isCharacter(std::uint32_t code) {
  return code <= lastCharacter && (code < firstSurrogate || code > lastSurrogate);
}

/// Bytes that a lead byte announces, and the smallest code that needs them; 0 where it is no lead byte.
std::size_t announcedLength(unsigned char lead, std::uint32_t& smallestCode) {
  if ((lead & 0xE0) == 0xC0)
    return smallestCode = 0x80, 2;
  if ((lead & 0xF0) == 0xE0)
    return smallestCode = 0x800, 3;
  if ((lead & 0xF8) == 0xF0)
    return smallestCode = 0x10000, 4;
  return 0;
}

} // namespace

std::size_t utf8CharacterLength(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text.front());
  if (lead < 0x80)
    return 1;
  std::uint32_t smallestCode = 0;
  const std::size_t length = announcedLength(lead, smallestCode);
  if (length == 0 || text.size() < length)
    return 0;
  std::uint32_t code = lead & (0x7FU >> length);
  for (const char byte : text.substr(1, length - 1)) {
    const auto continuation = static_cast<unsigned char>(byte);
    if ((continuation & 0xC0) != 0x80)
      return 0;
    code = code << 6 | (continuation & 0x3FU);
  }
  return code >= smallestCode && isCharacter(code) ? length : 0;
}

void appendUtf8(std::string& text, std::uint32_t character) {
  const std::uint32_t code = isCharacter(character) ? character : 0xFFFD;
  const auto continuation = [&](unsigned shift) { text += static_cast<char>(0x80 | ((code >> shift) & 0x3F)); };
  if (code < 0x80) {
    text += static_cast<char>(code);
  } else if (code < 0x800) {
    text += static_cast<char>(0xC0 | code >> 6);
    continuation(0);
  } else if (code < 0x10000) {
    text += static_cast<char>(0xE0 | code >> 12);
    continuation(6);
    continuation(0);
  } else {
    text += static_cast<char>(0xF0 | code >> 18);
    continuation(12);
    continuation(6);
    continuation(0);
  }
}

} // namespace LagomareQuery
