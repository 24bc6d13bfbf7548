#pragma once

#include "tools/check/rules/TableRows.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace LagomareTools {

// The fields of the current row as the import converts them. What it would stumble over becomes an error, what it would
// cut a warning. Nothing where there is no such number.

/// The first column as an id, which becomes the owner of the row.
[[nodiscard]] std::optional<std::uint32_t> readId(TableRows& rows);
[[nodiscard]] std::optional<std::uint32_t> readWhole(TableRows& rows, std::size_t column);
[[nodiscard]] std::optional<double> readNumber(TableRows& rows, std::size_t column);

/// Which of the two integers a priority goes into.
struct PriorityUse {
  bool isGeneral; ///< the signed one
  bool isOfState; ///< the unsigned one
};
void readPriority(TableRows& rows, std::size_t column, PriorityUse use);

/// A field in quotes for a message; "an empty field" where it is.
[[nodiscard]] std::string quoted(std::string_view field);

} // namespace LagomareTools
