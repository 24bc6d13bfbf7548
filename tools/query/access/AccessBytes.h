#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace LagomareQuery {

/// Throws a QueryError that says that the Access file is damaged. `where` says what is wrong, such as "page 12 is
/// missing".
[[noreturn]] void throwDamaged(const std::string& where);

/// A part of a page; does not own the bytes. Numbers are little-endian, offsets are bytes from 0. Reading past the end
/// throws QueryError, as the file must be damaged.
class AccessBytes {
public:
  AccessBytes() = default;
  AccessBytes(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

  [[nodiscard]] const std::uint8_t* data() const { return data_; }
  [[nodiscard]] std::size_t size() const { return size_; }
  [[nodiscard]] std::uint8_t u8(std::size_t offset) const { return *at(offset, 1); }
  [[nodiscard]] std::uint16_t u16(std::size_t offset) const { return number<std::uint16_t>(offset); }
  [[nodiscard]] std::uint32_t u32(std::size_t offset) const { return number<std::uint32_t>(offset); }
  [[nodiscard]] std::uint64_t u64(std::size_t offset) const { return number<std::uint64_t>(offset); }
  [[nodiscard]] AccessBytes part(std::size_t offset, std::size_t size) const { return {at(offset, size), size}; }
  [[nodiscard]] AccessBytes from(std::size_t offset) const { return {at(offset, 0), size_ - offset}; }

private:
  [[nodiscard]] const std::uint8_t* at(std::size_t offset, std::size_t size) const {
    if (offset > size_ || size > size_ - offset)
      throwDamaged("a value beyond the end of its page");
    return data_ + offset;
  }
  template <typename Number>
  [[nodiscard]] Number number(std::size_t offset) const {
    const std::uint8_t* bytes = at(offset, sizeof(Number));
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < sizeof(Number); ++i)
      value |= std::uint64_t{bytes[i]} << 8 * i;
    return static_cast<Number>(value);
  }

  const std::uint8_t* data_ = nullptr;
  std::size_t size_ = 0;
};

} // namespace LagomareQuery
