#pragma once

#include "tools/check/rules/TableRows.h"
#include "tools/check/tables/Elements.h"

#include <optional>

namespace LagomareTools {

/// Notes a number of the current row that looks wrong, though it comes in: by what its column holds.
void checkValue(TableRows& rows, std::size_t column, double value);

/// Reads the three volumes of a reservoir and notes what looks wrong. Nothing where one is no number.
[[nodiscard]] std::optional<Volumes> readVolumes(TableRows& rows);

/// Whether a number is beyond doubt in any column: for whoever reads millions.
[[nodiscard]] inline bool isUsual(double value) { return value >= 0.0 && value <= 1.0; }

} // namespace LagomareTools
