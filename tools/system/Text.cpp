#include "tools/system/Text.h"

#include "tools/system/Utf8.h"

#include <fmt/format.h>

namespace LagomareTools {

namespace {

constexpr std::string_view noBreakSpace = "\xC2\xA0";
constexpr std::string_view replacement = "\xEF\xBF\xBD"; // U+FFFD

/// Calls visit(character, first byte) for each character, with an empty character for an invalid byte.
template <typename Visit>
void forEachCharacter(std::string_view text, Visit visit) {
  while (!text.empty()) {
    const std::size_t length = utf8CharacterLength(text);
    visit(text.substr(0, length), static_cast<unsigned char>(text.front()));
    text.remove_prefix(length == 0 ? 1 : length);
  }
}

bool isControl(std::string_view character) {
  const auto lead = static_cast<unsigned char>(character.front());
  if (character.size() == 1)
    return lead < 0x20 || lead == 0x7F;
  return (lead == 0xC2 && static_cast<unsigned char>(character[1]) < 0xA0) || character == "\xE2\x80\xA8" ||
         character == "\xE2\x80\xA9"; // U+0080 to U+009F, the line and the paragraph separator
}

std::string escaped(std::string_view bytes) {
  if (bytes == "\n")
    return "\\n";
  std::string text;
  for (const char byte : bytes)
    text += fmt::format("\\x{:02X}", static_cast<unsigned char>(byte));
  return text;
}

} // namespace

std::string plainText(std::string_view text) {
  std::string plain;
  forEachCharacter(text, [&plain](std::string_view character, unsigned char) {
    if (character.empty())
      plain += replacement;
    else if (character == noBreakSpace || isControl(character))
      plain += ' ';
    else
      plain += character;
  });
  return plain;
}

std::string oneLine(std::string_view text) {
  std::string line;
  forEachCharacter(text, [&line](std::string_view character, unsigned char byte) {
    if (character.empty())
      line += fmt::format("\\x{:02X}", byte);
    else if (character == noBreakSpace)
      line += ' ';
    else if (isControl(character))
      line += escaped(character);
    else
      line += character;
  });
  return line;
}

std::string excerpt(const std::string& text) {
  std::size_t length = 200;
  if (text.size() <= length)
    return text;
  while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80) // not within a character
    --length;
  return text.substr(0, length) + "...";
}

std::string counted(std::size_t count, const char* noun) {
  return (count == 0 ? "no" : std::to_string(count)) + ' ' + noun + (count == 1 ? "" : "s");
}

} // namespace LagomareTools
