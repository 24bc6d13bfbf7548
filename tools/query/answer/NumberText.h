#pragma once

#include <cstddef>
#include <cstdint>

namespace LagomareQuery {

/// Longest text of a number, in bytes: a sign, "0.", 307 zeros and 17 digits.
inline constexpr std::size_t numberRoom = 328;

/// Writes the number's field to `to`, which has numberRoom bytes, and returns the end of it: the shortest text that
/// reads back to the same number without an exponent, of which the reader would take what stands before it for an id.
/// Whole numbers below 9.2e18 are exact; a subnormal is 0; the infinities are "inf" and "-inf", which the reader takes
/// for what they are.
[[nodiscard]] char* writeNumber(char* to, std::int64_t value);
[[nodiscard]] char* writeNumber(char* to, double value);

} // namespace LagomareQuery
