#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace LagomareFuzz {

/// What is damaged in one of several files. As text it is decimal numbers: that of the file, then pairs of a position
/// (modulo the file's size) and the byte to put there, or 256 to cut the file at the position. The text ends where
/// something else begins.
class Damage {
public:
  explicit Damage(const std::string& text);

  [[nodiscard]] std::string text() const;
  [[nodiscard]] std::uint32_t file() const { return file_; }
  [[nodiscard]] std::size_t changes() const { return changes_.size(); }
  /// The bytes, at least one, with the damage done to them.
  [[nodiscard]] std::string appliedTo(std::string bytes) const;

  /// Adds, alters or drops a change; most new ones stand near another one or where a page begins.
  void mutate(std::mt19937& random);

private:
  struct Change {
    std::uint32_t position;
    std::uint32_t value;
  };
  [[nodiscard]] Change newChange(std::mt19937& random) const;

  std::uint32_t file_ = 0;
  std::vector<Change> changes_;
};

/// For LLVMFuzzerCustomMutator: mutates a damage in place and returns its new size.
[[nodiscard]] std::size_t mutateDamage(std::uint8_t* data, std::size_t size, std::size_t maxSize, unsigned seed);

} // namespace LagomareFuzz
