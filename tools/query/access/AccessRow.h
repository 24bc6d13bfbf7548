#pragma once

#include "tools/query/access/AccessFile.h"

namespace LagomareQuery {

/// A row's place: a page and a slot in its table of rows.
struct AccessRowId {
  std::uint32_t page = 0;
  std::uint8_t slot = 0;

  /// As pages store it: three bytes of page over one of slot.
  [[nodiscard]] static AccessRowId stored(std::uint32_t number) {
    return {number >> 8, static_cast<std::uint8_t>(number & 0xFF)};
  }
};

/// What a data page's table of rows says of a slot.
enum class AccessSlot {
  row,
  pointer, ///< to the row, which moved to another page
  deleted, ///< or the body of a row that moved here, which is reached only through its pointer
};

/// Rows that a data page says it has.
[[nodiscard]] std::size_t rowCount(const AccessPage& page, const AccessFormat& format);

[[nodiscard]] AccessSlot slotOf(const AccessPage& page, const AccessFormat& format, std::size_t slot);

/// The slot's bytes, whatever it holds. Throws QueryError where the page's table of rows makes no sense.
[[nodiscard]] AccessBytes rowBytes(const AccessPage& page, const AccessFormat& format, std::size_t slot);

/// Reads the page of a row that something points to; the row's bytes point into `page`.
[[nodiscard]] AccessBytes readRow(const AccessFile& file, AccessRowId row, AccessPage& page);

} // namespace LagomareQuery
