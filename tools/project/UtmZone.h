#pragma once

#include "model/Hemisphere.h"

#include <optional>
#include <string>
#include <string_view>

namespace LagomareTools {

struct UtmZone {
  unsigned number; ///< 1 to 60
  Hemisphere hemisphere;
};

/// The zone that is assumed where none is given.
constexpr UtmZone usualZone{23, Hemisphere::South};

/// Number and hemisphere: "23S".
[[nodiscard]] std::string textOf(const UtmZone& zone);

/// Reads 1 to 60 and N, S or a latitude band: C to M are south, N to X north, except that S alone is the hemisphere.
/// Upper or lower case. Returns nothing if the text is no zone.
[[nodiscard]] std::optional<UtmZone> parseZone(std::string_view text);

} // namespace LagomareTools
