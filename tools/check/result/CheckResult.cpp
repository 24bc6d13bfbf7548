#include "tools/check/result/CheckResult.h"

#include "tools/check/result/Rule.h"

#include <algorithm>
#include <numeric>

namespace LagomareTools {

std::size_t CheckResult::count(Severity severity) const {
  return static_cast<std::size_t>(std::count_if(faults.begin(), faults.end(),
                                                [severity](const Fault& fault) { return fault.severity == severity; }));
}

std::size_t CheckResult::numOfRowsNotTaken() const {
  return std::accumulate(tables.begin(), tables.end(), std::size_t{0},
                         [](std::size_t sum, const TableCount& table) { return sum + table.rows - table.taken; });
}

std::size_t CheckResult::numOfRowsTakenOtherwise() const {
  std::size_t rows = 0;
  for (const Fault& fault : faults)
    rows += ruleOf(fault).rows == Rows::takenOtherwise ? fault.rows : 0;
  return rows;
}

} // namespace LagomareTools
