#pragma once

#include <cstddef>
#include <cstdint>

namespace LagomareQuery {

/// The size of the longest number in bytes: a sign, "0.", 307 zeros and 17 digits.
inline constexpr std::size_t numberRoom = 328;

/// Writes a number to `to`, which must have numberRoom bytes, and returns the end of the text. It is the shortest text
/// that reads back to the same number, but without an exponent: an importer would read 6e-5 as the id 6. Whole numbers
/// below 9.2e18 are exact. A subnormal number is written as 0, the infinities as "inf" and "-inf", which an importer
/// reads.
[[nodiscard]] char* writeNumber(char* to, std::int64_t value);
[[nodiscard]] char* writeNumber(char* to, double value);

} // namespace LagomareQuery
