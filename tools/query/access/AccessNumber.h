#pragma once

#include "tools/query/access/AccessBytes.h"

#include <cstdint>
#include <string>

namespace LagomareQuery {

/// Returns the double with the same shortest text: 0.1 for the single 0.1, not 0.10000000149011612.
[[nodiscard]] double doubleOfSingle(float single);

/// Converts an amount, in units of 1/10000, to the nearest double.
[[nodiscard]] double doubleOfCurrency(std::int64_t tenThousandths);

/// Converts a decimal number to the nearest double. It has 17 bytes: a sign, then four groups of four bytes, the most
/// significant group first. `scale` is the number of digits after the point.
[[nodiscard]] double doubleOfDecimal(AccessBytes stored, unsigned scale);

/// Converts days since 1899-12-30 to "YYYY-MM-DD HH:MM:SS", rounded to the second. The fraction is the time of day,
/// also in negative numbers: -1.25 is 1899-12-29 06:00. Throws QueryError outside the years 1 to 9999.
[[nodiscard]] std::string isoOfDateTime(double days);

/// Returns a text like "{00112233-4455-6677-8899-AABBCCDDEEFF}".
[[nodiscard]] std::string textOfGuid(AccessBytes stored);

} // namespace LagomareQuery
