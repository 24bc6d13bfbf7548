#pragma once

#include "model/Container.h"
#include "model/SerieType.h"
#include "model/Unit.h"
#include "telu_qt_export.h"

#include <utility>
#include <vector>

/// The series that a planner gives for a demand.
class TELU_QT_EXPORT DemandSeriesInput : public Container<SerieType> {
public:
  /// The kinds and units of a demand's series: demand and natural flow, both in m³/s.
  static const std::vector<std::pair<SerieType, Unit>> seriesTable;
};
