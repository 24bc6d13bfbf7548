#pragma once

#include "model/Enum.h"

#include <cstdint>
#include <string>
#include <utility>

enum class Hemisphere : std::int32_t { South = 0, North = 1 };

/// A hemisphere, with the letter that follows the number of a UTM zone.
class EnumHemisphere : public Enum<Hemisphere> {
public:
  EnumHemisphere(Hemisphere type, char zoneLetter, std::string displayName)
      : Enum(static_cast<std::int32_t>(type), std::move(displayName)), code(zoneLetter) {}

  char code;
};

class SouthType : public EnumHemisphere {
public:
  SouthType() : EnumHemisphere(Hemisphere::South, 'S', "Sul") {}
};

class NorthType : public EnumHemisphere {
public:
  NorthType() : EnumHemisphere(Hemisphere::North, 'N', "Norte") {}
};
