#pragma once

#include <cstdint>

namespace LagomareQuery {

/// A day of the proleptic Gregorian calendar; months and days count from 1.
struct Day {
  int year = 0;
  int month = 0;
  int day = 0;
};

/// Whether the calendar has it, years 0 to 9999.
[[nodiscard]] bool isDay(const Day& day);

/// The day so many days after 1899-12-30 (before it, if negative), on which Access counts dates from; `days` must lie
/// within the years 0 to 9999.
[[nodiscard]] Day dayFromAccess(std::int64_t days);

} // namespace LagomareQuery
