#include "tools/system/Utf8.h"

namespace LagomareTools {

namespace {

/// Whether the second byte is valid after the first: no overlong form, no surrogate, nothing above U+10FFFF.
bool isSecondByte(unsigned lead, unsigned second) {
  const unsigned lowest = lead == 0xE0 ? 0xA0U : lead == 0xF0 ? 0x90U : 0x80U;
  const unsigned highest = lead == 0xED ? 0x9FU : lead == 0xF4 ? 0x8FU : 0xBFU;
  return second >= lowest && second <= highest;
}

} // namespace

std::size_t utf8CharacterLength(std::string_view text) {
  const auto byte = [text](std::size_t index) {
    return static_cast<unsigned>(static_cast<unsigned char>(text[index]));
  };
  const unsigned lead = byte(0);
  if (lead < 0x80)
    return 1;
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || text.size() < length || !isSecondByte(lead, byte(1)))
    return 0;
  for (std::size_t index = 2; index < length; ++index)
    if ((byte(index) & 0xC0U) != 0x80)
      return 0;
  return length;
}

} // namespace LagomareTools
