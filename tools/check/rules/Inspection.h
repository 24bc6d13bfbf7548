#pragma once

#include "access/QuerySource.h"
#include "model/Interval.h"
#include "tools/check/result/CheckResult.h"
#include "tools/check/result/Findings.h"
#include "tools/check/tables/Elements.h"
#include "tools/check/tables/Listing.h"
#include "tools/check/tables/Tables.h"
#include "tools/project/Dialect.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace LagomareTools {

/// What the general settings and the boundaries say.
struct Settings {
  std::optional<Interval> interval; ///< nothing where they do not tell it; never empty
  bool askForStates = true; ///< also where they do not tell it: then the states' tables are checked as they stand
  unsigned numOfStates = 0; ///< 0 where they are not asked for
};

/// A check on its way through the tables: what the rules share.
struct Inspection {
  Lagomare::QuerySource& source;
  Dialect dialect;
  const Schema& schema;
  std::optional<Listing> listing;
  Prospect prospect = Prospect::imported;
  Settings settings;
  Elements elements;
  Findings findings;
  std::vector<TableCount> counts;
};

/// The row that made an element.
[[nodiscard]] inline Place placeOf(const ElementRow& element, std::uint32_t id) {
  return {element.table, element.row, id, element.name};
}

} // namespace LagomareTools
