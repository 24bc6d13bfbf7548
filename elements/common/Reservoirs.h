#pragma once

#include "access/QueryResult.h"
#include "elements/common/ElementMap.h"
#include "elements/common/Elements.h"
#include "model/Interval.h"
#include "model/PriorityReservoirSettings.h"
#include "model/Reservoir.h"
#include "model/Scenario.h"

namespace Lagomare {

/// The columns of a reservoir's volumes, in the order in which they are converted.
struct VolumeColumns {
  std::size_t initial;
  std::size_t minimum;
  std::size_t maximum;
};

/// The columns of a point of an area-volume curve, in the order in which they are converted.
struct CurveColumns {
  std::size_t level;
  std::size_t area;
  std::size_t volume;
};

/// Sets the three volumes as read and clears the volume flag; the rest of the record stays.
void setVolumes(Reservoir& reservoir, const Row& row, const VolumeColumns& columns);

/// Sets whether the reservoir counts towards the system's hydrological state: any number but 0 says so.
/// Throws as settingsOf does before it converts.
void setSystemFlag(Reservoir& reservoir, const Row& row, std::size_t column, Scenario& scenario);

/// Replaces the curve of each reservoir by all rows of its id, in their order.
void loadCurves(const QueryResult& rows, const ElementMap& elements, const CurveColumns& columns);

/// Parts the monthly net evaporation of column 1, twelve rows per reservoir, into evaporation (not negative)
/// and precipitation (the amount of what is negative), both in mm over the interval. The scale turns the
/// rows' unit into mm. Months without a row keep what the series held.
void loadNetEvaporation(const QueryResult& rows, const ElementMap& elements, const Interval& interval, double scale);

/// Gives every reservoir a target of 1.0, full, at every date. Throws as serieOf does.
void fillTargets(const ElementMap& elements, const Interval& interval);

} // namespace Lagomare
