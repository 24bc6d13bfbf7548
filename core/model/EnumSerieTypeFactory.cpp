#include "model/EnumSerieTypeFactory.h"

#include <cstdint>
#include <stdexcept>

Enum<SerieType> EnumSerieTypeFactory::makeSerieType(const SerieType& type) {
  for (const auto* list : {&inputSerieTypes, &resultSerieTypes})
    for (const auto& value : *list)
      if (value->id == static_cast<std::int32_t>(type))
        return *value;
  throw std::invalid_argument("EnumSerieTypeFactory::makeSerieType: invalid serie type");
}
