#include "tools/check/rules/Conversions.h"
#include "tools/check/rules/Rules.h"
#include "tools/check/rules/ValueRules.h"

#include <cstdint>
#include <map>
#include <optional>

namespace LagomareTools {

namespace {

constexpr std::size_t valueColumn = 1;

/// A boundary, by its id.
struct Boundary {
  std::size_t row;
  std::optional<double> value;
};

/// They come in by ascending id.
void reportNotRising(TableRows& rows, const std::map<std::uint32_t, Boundary>& boundaries) {
  std::optional<double> last;
  for (const auto& [id, boundary] : boundaries) {
    if (last && boundary.value && !(*boundary.value > *last))
      rows.add(Code::boundariesNotRising, {rows.table().name, boundary.row, id},
               [] { return "it does not lie above the boundary of the id before it"; });
    last = boundary.value;
  }
}

std::map<std::uint32_t, Boundary> readBoundaries(TableRows& rows) {
  std::map<std::uint32_t, Boundary> boundaries;
  while (rows.next()) {
    const auto id = readId(rows);
    if (!id)
      continue;
    if (boundaries.count(*id) != 0) {
      rows.add(Code::repeatedId, rows.place(), [] { return "the first row of the id counts"; });
      continue;
    }
    rows.take();
    const auto value = readNumber(rows, valueColumn);
    boundaries[*id] = {rows.number(), value};
    if (value)
      checkValue(rows, valueColumn, *value);
  }
  return boundaries;
}

} // namespace

void checkBoundaries(Inspection& inspection, const LegacyTable& table) {
  if (!inspection.settings.askForStates) {
    reportNotRead(inspection, table, "the general settings do not ask for hydrological states");
    return;
  }
  TableRows rows(inspection, table);
  const auto boundaries = readBoundaries(rows);
  inspection.settings.numOfStates = static_cast<unsigned>(boundaries.size()) + 1U;
  reportNotRising(rows, boundaries);
}

} // namespace LagomareTools
