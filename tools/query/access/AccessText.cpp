#include "tools/query/access/AccessText.h"

#include <array>
#include <cstdint>

namespace LagomareQuery {

namespace {

/// Appends a character; a surrogate, which UTF-8 cannot hold, becomes U+FFFD.
void appendUtf8(std::string& text, std::uint32_t character) {
  const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
  const std::uint32_t code = isSurrogate ? 0xFFFD : character;
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

/// Joins UTF-16 units into characters.
class Utf16Appender {
public:
  explicit Utf16Appender(std::string& text) : text_(text) {}
  ~Utf16Appender() { flush(); }

  void append(std::uint32_t unit) {
    const bool completes = high_ != 0 && unit >= 0xDC00 && unit <= 0xDFFF;
    if (completes) {
      appendUtf8(text_, 0x10000 + ((high_ - 0xD800) << 10) + (unit - 0xDC00));
      high_ = 0;
      return;
    }
    flush();
    if (unit >= 0xD800 && unit <= 0xDBFF)
      high_ = unit;
    else
      appendUtf8(text_, unit);
  }

private:
  void flush() {
    if (high_ != 0)
      appendUtf8(text_, high_);
    high_ = 0;
  }

  std::string& text_;
  std::uint32_t high_ = 0; // the first half of a surrogate pair, until the second one comes
};

void appendCompressed(AccessBytes stored, Utf16Appender& text) {
  bool oneByte = true;
  for (std::size_t i = 0; i < stored.size();) {
    if (stored.u8(i) == 0) {
      oneByte = !oneByte;
      ++i;
    } else if (oneByte) {
      text.append(stored.u8(i++));
    } else if (i + 2 <= stored.size()) {
      text.append(stored.u16(i));
      i += 2;
    } else {
      return;
    }
  }
}

} // namespace

void appendUtf16(AccessBytes stored, std::string& text) {
  constexpr std::uint16_t compressedMark = 0xFEFF; // the bytes FF FE
  Utf16Appender appender(text);
  if (stored.size() >= 2 && stored.u16(0) == compressedMark)
    return appendCompressed(stored.from(2), appender);
  for (std::size_t i = 0; i + 2 <= stored.size(); i += 2)
    appender.append(stored.u16(i));
}

void appendWindows1252(AccessBytes stored, std::string& text) {
  // The characters for 0x80 to 0x9F. The other bytes equal their Unicode numbers.
  static constexpr std::array<std::uint16_t, 32> special = {
      0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
      0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD, 0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
      0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};
  for (std::size_t i = 0; i < stored.size(); ++i) {
    const std::uint8_t byte = stored.u8(i);
    appendUtf8(text, byte >= 0x80 && byte <= 0x9F ? special[byte - 0x80U] : byte);
  }
}

} // namespace LagomareQuery
