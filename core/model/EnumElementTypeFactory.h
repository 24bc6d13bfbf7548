#pragma once

#include "model/ElementType.h"
#include "telu_qt_export.h"

class TELU_QT_EXPORT EnumElementTypeFactory {
public:
  /// The value of a kind of element. Throws std::invalid_argument
  /// "EnumElementTypeFactory::makeElementType: invalid element type" for an id that no kind has.
  [[nodiscard]] static EnumElementType makeElementType(ElementType type);
};
