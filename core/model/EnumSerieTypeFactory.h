#pragma once

#include "model/Enum.h"
#include "model/SerieType.h"
#include "telu_qt_export.h"

class TELU_QT_EXPORT EnumSerieTypeFactory {
public:
  /// The value of a series kind. Throws std::invalid_argument
  /// "EnumSerieTypeFactory::makeSerieType: invalid serie type" for an id that no kind has.
  [[nodiscard]] static Enum<SerieType> makeSerieType(const SerieType& type);
};
