#include "tools/query/access/AccessCipher.h"

#include <array>
#include <utility>

namespace LagomareQuery {

void applyCipher(std::uint32_t key, std::uint8_t* bytes, std::size_t size) {
  std::array<std::uint8_t, 256> state{};
  for (std::size_t i = 0; i < state.size(); ++i)
    state[i] = static_cast<std::uint8_t>(i);
  std::uint8_t j = 0;
  for (std::size_t i = 0; i < state.size(); ++i) {
    j = static_cast<std::uint8_t>(j + state[i] + (key >> 8 * (i % 4)));
    std::swap(state[i], state[j]);
  }
  std::uint8_t i = 0;
  j = 0;
  for (std::size_t place = 0; place < size; ++place) {
    j = static_cast<std::uint8_t>(j + state[++i]);
    std::swap(state[i], state[j]);
    bytes[place] = static_cast<std::uint8_t>(bytes[place] ^ state[static_cast<std::uint8_t>(state[i] + state[j])]);
  }
}

} // namespace LagomareQuery
