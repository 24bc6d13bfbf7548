#pragma once

#include "tools/query/access/AccessBytes.h"

namespace LagomareQuery {

/// The double that the single's shortest text reads as: 0.1 for the single 0.1, not 0.10000000149011612.
[[nodiscard]] double doubleOfSingle(float single);

/// `tenThousandths` is the amount times 10,000; the double nearest to its decimal text.
[[nodiscard]] double doubleOfCurrency(std::int64_t tenThousandths);

/// 17 bytes: a sign, then four groups of four bytes, the most significant group first; `scale` counts the digits behind
/// the point. The double nearest to the decimal text.
[[nodiscard]] double doubleOfDecimal(AccessBytes stored, unsigned scale);

/// `days` counts from 1899-12-30; the fraction is the time of day, always forward, before that day too. "YYYY-MM-DD
/// HH:MM:SS", to the nearest second. Throws QueryError outside the years 1 to 9999.
[[nodiscard]] std::string isoOfDateTime(double days);

/// "{00112233-4455-6677-8899-AABBCCDDEEFF}"
[[nodiscard]] std::string textOfGuid(AccessBytes stored);

} // namespace LagomareQuery
