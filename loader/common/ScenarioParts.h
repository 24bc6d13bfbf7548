#pragma once

#include "model/Interval.h"
#include "model/Scenario.h"

#include <cstdint>
#include <memory>
#include <string>

namespace Lagomare {

// What the scenario loaders of both dialects do alike.

/// The months of so many years from the month of the start on: the end is the first day of the last month.
/// Throws std::invalid_argument where that leads past the year 9999.
[[nodiscard]] Interval makeInterval(Date start, std::uint32_t durationYears);

/// The first day of a month. Throws std::invalid_argument where there is no such month.
[[nodiscard]] Date firstDayOf(std::uint32_t year, std::uint32_t month);

/// A PriorityScenario under the next id, continuous, without elements.
[[nodiscard]] std::shared_ptr<Scenario> makeScenario(const Interval& interval);

/// Gives the scenario the kind of states "Padrão" and reads the boundaries between them, all columns of the table:
/// column 1 of the first row of each id, in the order of the ids.
void loadStates(Scenario& scenario, const std::string& boundaryTable);

} // namespace Lagomare
