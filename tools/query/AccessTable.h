#pragma once

#include "tools/query/AccessRow.h"
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

/// A table's definition, read from the pages that hold it and checked against the pages that hold its rows.
struct AccessTable {
  std::string name;
  std::uint32_t rowCount = 0; ///< 0: unknown, the database was not closed properly
  bool hasVariableColumns = false;
  std::vector<AccessColumn> columns;    ///< in the order of `select *`
  std::vector<std::uint32_t> dataPages; ///< in stored order
};

/// Reads the definition that begins on that page. Throws QueryError, also where the pages hold other rows than the
/// definition says, so that no row is missed without a word.
[[nodiscard]] AccessTable readTable(const AccessFile& file, std::string name, std::uint32_t definitionPage);

} // namespace LagomareQuery
