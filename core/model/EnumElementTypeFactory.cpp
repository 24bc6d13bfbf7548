#include "model/EnumElementTypeFactory.h"

#include <stdexcept>

EnumElementType EnumElementTypeFactory::makeElementType(ElementType type) {
  for (const auto& kind : allKindValues)
    if (kind->type() == type)
      return *kind;
  throw std::invalid_argument("EnumElementTypeFactory::makeElementType: invalid element type");
}
