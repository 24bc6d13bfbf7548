#pragma once

#include "model/Enum.h"
#include "model/Unit.h"
#include "telu_qt_export.h"

class TELU_QT_EXPORT EnumUnitFactoryByType {
public:
  /// The value of a unit; for the id 13, which two units share, either of the two. Throws
  /// std::invalid_argument "EnumUnitFactoryByType::makeUnit: invalid unit" for an id that no unit has.
  [[nodiscard]] static Enum<Unit> makeUnit(const Unit& unit);
};
