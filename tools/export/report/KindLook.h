#pragma once

#include "model/ElementType.h"

namespace LagomareTools {

/// How a kind of node looks on the map; its colour is in the page's style.
struct KindLook {
  const char* path; ///< SVG, around 0/0, in pixels
  double radius;
  unsigned rank; ///< labels of a higher rank are placed first
};

[[nodiscard]] const KindLook& lookOf(ElementType type);

/// Arrow heads around 0/0, pointing to the right; of a two-way link, one to each side.
[[nodiscard]] const char* arrowPath(bool isTwoWay);

} // namespace LagomareTools
