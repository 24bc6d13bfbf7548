#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace LagomareTools {

/// A rectangle, in pixels, y down.
struct MapBox {
  double left;
  double top;
  double right;
  double bottom;

  [[nodiscard]] MapBox grownBy(double pixels) const {
    return {left - pixels, top - pixels, right + pixels, bottom + pixels};
  }
};

/// Boxes by the cells of a grid, so that those near a place are found without a look at all.
class MapBoxes {
public:
  void add(const MapBox& box);
  /// Whether no box of the grid covers any of it.
  [[nodiscard]] bool isFree(const MapBox& box) const;

private:
  std::unordered_map<std::int64_t, std::vector<MapBox>> cells_;
};

} // namespace LagomareTools
