#include "fuzz/Damage.h"

#include <algorithm>
#include <iterator>
#include <sstream>

namespace LagomareFuzz {

namespace {

constexpr std::uint32_t cut = 256;

std::uint32_t newValue(std::mt19937& random) {
  const std::uint32_t values[] = {0, 1, 0x7F, 0x80, 0xFF, static_cast<std::uint32_t>(random() % 256)};
  return random() % 64 == 0 ? cut : values[random() % std::size(values)];
}

} // namespace

Damage::Damage(const std::string& text) {
  std::istringstream in(text);
  in >> file_;
  for (Change change{}; in >> change.position >> change.value;)
    changes_.push_back(change);
}

std::string Damage::text() const {
  std::ostringstream out;
  out << file_;
  for (const Change& change : changes_)
    out << ' ' << change.position << ' ' << change.value;
  return out.str();
}

std::string Damage::appliedTo(std::string bytes) const {
  const std::size_t size = bytes.size();
  for (const auto& [place, value] : changes_) {
    const std::size_t position = place % size;
    if (value >= cut)
      bytes.resize(std::min(bytes.size(), position));
    else if (position < bytes.size())
      bytes[position] = static_cast<char>(value);
  }
  return bytes;
}

Damage::Change Damage::newChange(std::mt19937& random) const {
  constexpr std::uint32_t smallestPage = 512;
  constexpr std::uint32_t headerSize = 64;
  constexpr std::uint32_t greatestSize = std::uint32_t{1} << 20U;
  auto position = static_cast<std::uint32_t>(random() % greatestSize);
  if (!changes_.empty() && random() % 2 == 0)
    position = changes_[random() % changes_.size()].position + static_cast<std::uint32_t>(random() % 33) - 16;
  else if (random() % 2 == 0)
    position = position / smallestPage * smallestPage + position % headerSize;
  return {position, newValue(random)};
}

void Damage::mutate(std::mt19937& random) {
  constexpr std::size_t mostChanges = 8;
  const std::size_t place = changes_.empty() ? 0 : random() % changes_.size();
  const auto kind = random() % 8;
  if (changes_.empty() || (kind < 3 && changes_.size() < mostChanges))
    changes_.push_back(newChange(random));
  else if (kind < 5)
    changes_.erase(changes_.begin() + static_cast<std::ptrdiff_t>(place));
  else if (kind == 5)
    changes_[place] = newChange(random);
  else if (kind == 6)
    changes_[place].value = newValue(random);
  else
    file_ = static_cast<std::uint32_t>(random() % 16);
}

std::size_t mutateDamage(std::uint8_t* data, std::size_t size, std::size_t maxSize, unsigned seed) {
  std::mt19937 random(seed);
  Damage damage(std::string(reinterpret_cast<const char*>(data), size));
  damage.mutate(random);
  const std::string text = damage.text();
  if (text.size() > maxSize)
    return size;
  std::copy(text.begin(), text.end(), data);
  return text.size();
}

} // namespace LagomareFuzz
