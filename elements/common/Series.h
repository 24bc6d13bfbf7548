#pragma once

#include "access/ValueColumn.h"
#include "access/ValueResult.h"
#include "elements/common/ElementMap.h"
#include "elements/common/Elements.h"
#include "model/Interval.h"
#include "model/SerieType.h"

namespace Lagomare {

/// How the rows of an id stand for the dates of an interval. Where there are fewer rows than the dates need,
/// the dates without a row keep what the series held.
enum class Layout {
  MonthlyProfile, ///< twelve rows, January first, repeated every year
  Sequence        ///< one row per date, in order
};

/// Lays the values of each id on the series of that kind of its element, over the interval, which the series
/// then takes. All values of an id are looked at before the first is laid. An id that is not among the
/// elements is skipped. Throws as serieOf and ValueColumn::requireNumbers do; the series of earlier ids stay
/// filled.
void loadSeries(const ValueResult& values, const ElementMap& elements, SerieType type, const Interval& interval,
                Layout layout);

/// The same for one series, but each value is looked at when its first date comes: a row that no date needs may hold
/// anything.
void layAsNeeded(const ValueColumn& values, Serie& serie, const Interval& interval, Layout layout);

} // namespace Lagomare
