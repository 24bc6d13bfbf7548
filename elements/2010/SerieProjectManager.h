#pragma once

#include "elements/2010/ElementProjectManager.h"
#include "lagomare_export.h"
#include "model/Interval.h"
#include "model/SerieType.h"

#include <string>

namespace Lagomare2010 {

/// Reads one kind of series for all elements of a loader with one query. An id that is not among the elements
/// is skipped. Throws std::invalid_argument "Invalid serie type!" where an element lacks the series, and
/// InvalidField or FieldOutOfRange ("stod").
class LAGOMARE_EXPORT SerieProjectManager {
public:
  SerieProjectManager() = delete;

  /// A monthly profile: twelve rows per id, January first, repeated every year of the interval.
  static void load(SerieType type, const Interval& interval, const std::string& table, const ElementMap& elements,
                   const std::string& idField, const std::string& valueField, const std::string& where);

  /// The natural flows, one row per date.
  static void loadNatFlow(const Interval& interval, const ElementMap& elements);
};

} // namespace Lagomare2010
