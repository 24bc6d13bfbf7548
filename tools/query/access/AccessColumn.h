#pragma once

#include "tools/query/access/AccessFile.h"
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
  bool calculated;           ///< computed by Access from other columns and stored in a form of its own
  bool fixed;                ///< stands at a fixed offset, else in the row's variable part
  std::uint16_t number;      ///< from 0, deleted columns counted: its bit in a row's null mask
  std::uint16_t fixedOffset; ///< bytes behind the row's column count
  std::uint16_t variableIndex;
  std::uint16_t size; ///< bytes; 0 for a truth value and for what varies
  std::uint8_t scale; ///< decimal digits behind the point, of a decimal
};

/// Bytes that a cell of a fixed column takes, whatever its definition says; that size where the type has none.
[[nodiscard]] std::size_t fixedSize(const AccessColumn& column);

/// The columns of a table, from the bytes of its definition, in the order of `select *`. Throws QueryError where they
/// cannot be those of one table.
[[nodiscard]] std::vector<AccessColumn> readColumns(const AccessFile& file, const std::string& table,
                                                    AccessBytes definition);

} // namespace LagomareQuery
