#pragma once

#include "elements/2013/ElementProjectManager.h"
#include "lagomare_export.h"
#include "model/Interval.h"
#include "model/SerieType.h"

#include <string>

namespace Lagomare2013 {

/// Reads one kind of series for all elements of a loader with one query. An id that is not among the elements
/// is skipped. Throws std::invalid_argument "Invalid serie type!" where an element lacks the series, and
/// InvalidField or FieldOutOfRange ("stod").
class LAGOMARE_EXPORT SerieProjectManager {
public:
  SerieProjectManager() = delete;

  /// One row per date, in order; dates left over keep what the series held.
  static void load(SerieType type, const Interval& interval, const std::string& table, const ElementMap& elements,
                   const std::string& where);
};

} // namespace Lagomare2013
