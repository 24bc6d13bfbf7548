#pragma once

#include <cstddef>
#include <string_view>

namespace LagomareTools {

/// How many bytes the first character of a UTF-8 text has; 0 if its first byte begins none: a stray or overlong byte, a
/// surrogate, a character that is cut off. The text is not empty.
[[nodiscard]] std::size_t utf8CharacterLength(std::string_view text);

} // namespace LagomareTools
