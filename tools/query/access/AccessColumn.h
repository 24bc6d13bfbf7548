#pragma once

#include "tools/query/access/AccessFile.h"
#include <cstdint>
#include <string>
#include <vector>

namespace LagomareQuery {

enum class AccessType : std::uint8_t {
  truth = 1,
  byte = 2,
  integer16 = 3,
  integer32 = 4,
  currency = 5,
  single = 6,
  real = 7,
  dateTime = 8,
  binary = 9,
  text = 10,
  ole = 11,
  memo = 12,
  guid = 15,
  decimal = 16,
  integer64 = 19,
};

struct AccessColumn {
  std::string name;
  AccessType type;
  bool calculated;           ///< computed by Access from other columns and stored in another form
  bool fixed;                ///< stored at a fixed offset, otherwise in the row's variable part
  std::uint16_t number;      ///< from 0, deleted columns included: its bit in a row's null mask
  std::uint16_t fixedOffset; ///< bytes from the end of the row's column count
  std::uint16_t variableIndex;
  std::uint16_t size; ///< bytes; 0 for a truth value and for variable size
  std::uint8_t scale; ///< of a decimal: digits after the point
};

/// The size of a fixed column's cells in bytes: that of its type or, if cells of the type vary in size, that of its
/// definition.
[[nodiscard]] std::size_t fixedSize(const AccessColumn& column);

/// Reads the columns of a table from its definition, in the order of `select *`. Throws QueryError if they contradict
/// each other.
[[nodiscard]] std::vector<AccessColumn> readColumns(const AccessFile& file, const std::string& table,
                                                    AccessBytes definition);

} // namespace LagomareQuery
