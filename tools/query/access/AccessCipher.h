#pragma once

#include <cstddef>
#include <cstdint>

namespace LagomareQuery {

/// Encodes or decodes bytes in place with RC4, the stream cipher of Access files; it is its own inverse. The key's
/// bytes count from the lowest one.
void applyCipher(std::uint32_t key, std::uint8_t* bytes, std::size_t size);

} // namespace LagomareQuery
