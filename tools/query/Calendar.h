#pragma once

#include <cstdint>

namespace LagomareQuery {

/// A day of the proleptic Gregorian calendar; months and days count from 1.
struct Day {
  int year = 0;
  int month = 0;
  int day = 0;
};

/// Whether the day exists, in the years 0 to 9999.
[[nodiscard]] bool isDay(const Day& day);

/// Converts a date of Access, which counts days from 1899-12-30. `days` may be negative, but must lie in the years 0 to
/// 9999.
[[nodiscard]] Day dayFromAccess(std::int64_t days);

} // namespace LagomareQuery
