#pragma once

#include <string>
#include <vector>

namespace LagomareQuery {

/// What came of a database's tables with one damaged byte: of the worst-read table, in this order from the worst.
struct SweepOutcome {
  unsigned lostRows = 0, changedCells = 0, errors = 0, same = 0;
};

/// Damages one byte of the database after the other in several ways, and compares `select *` from each table with what
/// the whole database answers. LAGOMARE_SWEEP_BYTES says how many of `places` are tried (all, if there are fewer),
/// LAGOMARE_SWEEP_SEED which. Prints the figures under `name`, and what was neither an error nor the same.
[[nodiscard]] SweepOutcome sweep(const std::string& name, const std::string& database,
                                 const std::vector<std::size_t>& places, const std::vector<std::string>& tables);

} // namespace LagomareQuery
