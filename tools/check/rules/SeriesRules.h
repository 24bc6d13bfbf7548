#pragma once

#include "tools/check/rules/Inspection.h"
#include "tools/check/tables/Tables.h"

namespace LagomareTools {

/// A table of series: one row per month of the period, or twelve that repeat every year.
void checkSeries(Inspection& inspection, const LegacyTable& table);

} // namespace LagomareTools
