#pragma once

#include "access/FieldError.h"
#include "access/QueryResult.h"
#include "lagomare_export.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace Lagomare {

// The fields of a row, by column from 0. A column that the row lacks is MissingField; a field that cannot be
// converted throws as Numbers.h says, with the row's id and the column set.

[[nodiscard]] LAGOMARE_EXPORT const std::string& textAt(const Row& row, std::size_t column);
[[nodiscard]] LAGOMARE_EXPORT std::uint32_t unsignedAt(const Row& row, std::size_t column);
[[nodiscard]] LAGOMARE_EXPORT double numberAt(const Row& row, std::size_t column);
[[nodiscard]] LAGOMARE_EXPORT std::int32_t truncatedIntAt(const Row& row, std::size_t column);
[[nodiscard]] LAGOMARE_EXPORT std::uint32_t truncatedUnsignedAt(const Row& row, std::size_t column);

/// Calls read() to read fields of one row of an answer, named by its id and its index, from 0, among the rows of that
/// id: an error that leaves it has the row's number set.
template <typename Read>
auto inRow(const QueryResult& rows, std::uint32_t id, std::size_t index, Read read) {
  try {
    return read();
  } catch (FieldError& error) {
    error.setRow(rows.numberOf(id, index));
    throw;
  }
}

/// What read(row) returns for each row of an id, in their order. Errors as with inRow.
template <typename Read>
auto readEach(const QueryResult& rows, std::uint32_t id, Read read) {
  const std::vector<Row>& rowsOfId = rows.at(id);
  std::vector<decltype(read(rowsOfId.front()))> values;
  values.reserve(rowsOfId.size());
  for (const Row& row : rowsOfId)
    values.push_back(inRow(rows, id, values.size(), [&] { return read(row); }));
  return values;
}

} // namespace Lagomare
