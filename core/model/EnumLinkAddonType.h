#pragma once

#include "model/Enum.h"

#include <cstdint>

enum class LinkAddonType : std::int32_t { None = 0, Propagation = 1, Pumping = 2 };

/// What a link does to the water besides carrying it.
using EnumLinkAddonType = Enum<LinkAddonType>;

class NoneType : public EnumLinkAddonType {
public:
  NoneType() : Enum(static_cast<std::int32_t>(LinkAddonType::None), "Nenhum") {}
};

class PropagationType : public EnumLinkAddonType {
public:
  PropagationType() : Enum(static_cast<std::int32_t>(LinkAddonType::Propagation), "Propagação") {}
};

class PumpingType : public EnumLinkAddonType {
public:
  PumpingType() : Enum(static_cast<std::int32_t>(LinkAddonType::Pumping), "Bombeamento") {}
};
