#pragma once

#include "tools/query/access/AccessFile.h"

#include <cstdint>

namespace LagomareQuery {

/// The place of a row: a page and one of its slots.
struct AccessRowId {
  std::uint32_t page = 0;
  std::uint8_t slot = 0;

  /// Reads the stored form: the lowest byte is the slot, the others are the page.
  [[nodiscard]] static AccessRowId stored(std::uint32_t number) {
    return {number >> 8, static_cast<std::uint8_t>(number & 0xFF)};
  }
};

/// What a slot of a data page holds.
enum class AccessSlot {
  row,
  pointer, ///< to a row that was moved to another page
  deleted, ///< or a row that was moved here, which only its pointer leads to
};

/// The number of slots of a data page.
[[nodiscard]] std::size_t slotCount(const AccessPage& page, const AccessFormat& format);

[[nodiscard]] AccessSlot slotOf(const AccessPage& page, const AccessFormat& format, std::size_t slot);

/// Returns the bytes of a slot, whatever it holds. Throws QueryError if its place is impossible.
[[nodiscard]] AccessBytes rowBytes(const AccessPage& page, const AccessFormat& format, std::size_t slot);

/// Reads the page of a row and returns the row's bytes, which point into `page`. Throws QueryError.
[[nodiscard]] AccessBytes readRow(const AccessFile& file, AccessRowId row, AccessPage& page);

} // namespace LagomareQuery
