#pragma once

#include "model/Enum.h"

#include <cstdint>
#include <map>
#include <string>

/// The direction in which a link carries water, against the one it was drawn in.
enum class Sense : std::int32_t { Original = 0, Inverted = 1 };

class OriginalSenseType : public Enum<Sense> {
public:
  OriginalSenseType() : Enum(static_cast<std::int32_t>(Sense::Original), "Original") {}
};

class InvertedSenseType : public Enum<Sense> {
public:
  InvertedSenseType() : Enum(static_cast<std::int32_t>(Sense::Inverted), "Invertido") {}
};

inline const std::map<Sense, Enum<Sense>> sensesByType{{Sense::Original, OriginalSenseType()},
                                                       {Sense::Inverted, InvertedSenseType()}};
inline const std::map<std::string, Enum<Sense>> sensesByName{{OriginalSenseType().name, OriginalSenseType()},
                                                             {InvertedSenseType().name, InvertedSenseType()}};
