#pragma once

#include "access/QueryResult.h"
#include "lagomare_export.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace Lagomare {

// The fields of a row, by column from 0. A column that the row lacks is MissingField; a field that cannot be
// converted throws as Numbers.h says, with the row's id and the column set.

[[nodiscard]] LAGOMARE_EXPORT const std::string& textAt(const Row& row, std::size_t column);
[[nodiscard]] LAGOMARE_EXPORT std::uint32_t unsignedAt(const Row& row, std::size_t column);
[[nodiscard]] LAGOMARE_EXPORT double numberAt(const Row& row, std::size_t column);
[[nodiscard]] LAGOMARE_EXPORT std::int32_t truncatedIntAt(const Row& row, std::size_t column);
[[nodiscard]] LAGOMARE_EXPORT std::uint32_t truncatedUnsignedAt(const Row& row, std::size_t column);

} // namespace Lagomare
