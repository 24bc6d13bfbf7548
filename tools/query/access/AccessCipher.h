#pragma once

#include <cstddef>
#include <cstdint>

namespace LagomareQuery {

/// Encodes or decodes bytes in place with RC4, the cipher of Access files; both are the same. The lowest byte of the
/// key comes first.
void applyCipher(std::uint32_t key, std::uint8_t* bytes, std::size_t size);

} // namespace LagomareQuery
