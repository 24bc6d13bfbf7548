#include "model/EnumUnitFactoryByType.h"

#include <cstdint>
#include <stdexcept>

Enum<Unit> EnumUnitFactoryByType::makeUnit(const Unit& unit) {
  for (const auto& value : unitValues)
    if (value->id == static_cast<std::int32_t>(unit))
      return *value;
  throw std::invalid_argument("EnumUnitFactoryByType::makeUnit: invalid unit");
}
