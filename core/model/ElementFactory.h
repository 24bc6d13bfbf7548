#pragma once

#include "model/Element.h"
#include "model/ElementType.h"
#include "telu_qt_export.h"

#include <memory>

class TELU_QT_EXPORT ElementFactory {
public:
  /// A new element of a concrete kind, its series prepared without an interval:
  /// reservoir: precipitation and evaporation (mm), natural flow (m³/s), target volume (a fraction);
  /// demand and drain: demand, natural flow (m³/s); junction: natural flow (m³/s);
  /// link: loss (%), flow limit (m³/s); basin: none.
  /// Throws std::invalid_argument "ElementFactory::make: invalid element type" for the generic kinds 1 and 9.
  [[nodiscard]] static std::shared_ptr<Element> make(ElementType type);
};
