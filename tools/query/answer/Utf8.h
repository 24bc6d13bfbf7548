#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace LagomareQuery {

/// Bytes of the character that the text begins with; 0 where its first byte begins none (a stray or overlong byte, a
/// surrogate, the text's cut end). The text is not empty.
[[nodiscard]] std::size_t utf8CharacterLength(std::string_view text);

/// Appends the character; one that no UTF-8 text can hold (a surrogate) becomes U+FFFD.
void appendUtf8(std::string& text, std::uint32_t character);

} // namespace LagomareQuery
