#include "tools/export/report/MapBoxes.h"

#include <algorithm>
#include <cmath>

namespace LagomareTools {

namespace {

constexpr double cell = 48.0; ///< pixels

template <typename Visit>
void forEachCell(const MapBox& box, Visit visit) {
  const auto index = [](double place) { return static_cast<std::int64_t>(std::floor(place / cell)); };
  for (std::int64_t row = index(box.top); row <= index(box.bottom); ++row)
    for (std::int64_t column = index(box.left); column <= index(box.right); ++column)
      visit(row * 1000000 + column);
}

} // namespace

void MapBoxes::add(const MapBox& box) {
  forEachCell(box, [&](std::int64_t key) { cells_[key].push_back(box); });
}

bool MapBoxes::isFree(const MapBox& box) const {
  bool isFree = true;
  const auto covers = [&box](const MapBox& other) {
    return other.left < box.right && box.left < other.right && other.top < box.bottom && box.top < other.bottom;
  };
  forEachCell(box, [&](std::int64_t key) {
    const auto found = cells_.find(key);
    if (found != cells_.end() && std::any_of(found->second.begin(), found->second.end(), covers))
      isFree = false;
  });
  return isFree;
}

} // namespace LagomareTools
