#include "tools/export/report/LabelPlacer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace LagomareTools {

namespace {

constexpr double cell = 48.0;     ///< pixels
constexpr double gap = 3.0;       ///< between a symbol and its label
constexpr double breathing = 4.0; ///< free room between labels

template <typename Visit>
void forEachCell(double left, double top, double right, double bottom, Visit visit) {
  const auto index = [](double place) { return static_cast<std::int64_t>(std::floor(place / cell)); };
  for (std::int64_t row = index(top); row <= index(bottom); ++row)
    for (std::int64_t column = index(left); column <= index(right); ++column)
      visit(row * 1000000 + column);
}

/// The places for a label beside a symbol, the best first.
std::array<LabelPlace, 8> placesAround(double radius, unsigned level) {
  const double aside = radius + gap;
  const double middle = LabelPlacer::textHeight * 0.35;
  const double below = aside + LabelPlacer::textHeight * 0.75;
  const double corner = radius * 0.7 + 1.0;
  return {{{aside, middle, "start", level},
           {-aside, middle, "end", level},
           {corner, -corner, "start", level},
           {corner, corner + LabelPlacer::textHeight * 0.75, "start", level},
           {-corner, -corner, "end", level},
           {-corner, corner + LabelPlacer::textHeight * 0.75, "end", level},
           {0, below, "middle", level},
           {0, -aside, "middle", level}}};
}

} // namespace

double pixelsPerUnit(unsigned level) { return std::exp2((static_cast<double>(level) - usualMapLevel) / 2); }

double roomForSymbols(std::size_t nodes) {
  return std::sqrt(160.0 / static_cast<double>(std::max<std::size_t>(nodes, 1)));
}

double symbolScale(double pixelsPerUnit, double room) { return std::clamp(pixelsPerUnit * room, 0.4, 1.0); }

void LabelPlacer::addSymbol(MapPoint at, double radius) {
  for (unsigned level = 0; level < numOfMapLevels; ++level) {
    const double pixels = pixelsPerUnit(level);
    const double size = radius * symbolScale(pixels, room_);
    take({at.x * pixels - size, at.y * pixels - size, at.x * pixels + size, at.y * pixels + size}, level);
  }
}

std::optional<LabelPlace> LabelPlacer::place(const LabelOwner& owner, std::size_t length) {
  constexpr unsigned patience = 2; // levels that one waits for a place which no link crosses
  for (unsigned level = 0; level < numOfMapLevels + patience; ++level)
    for (const bool isCrossedThere : {false, true})
      if (const unsigned later = isCrossedThere ? patience : 0; level >= later && level - later < numOfMapLevels)
        if (const auto place = placeAt(owner, length, level - later, isCrossedThere))
          return place;
  return std::nullopt;
}

std::optional<LabelPlace> LabelPlacer::placeAt(const LabelOwner& owner, std::size_t length, unsigned level,
                                               bool isCrossedThere) {
  for (const LabelPlace& place : placesAround(owner.radius, level))
    if (isCrossed(place, owner, length) == isCrossedThere && isFreeFrom(place, owner.at, length)) {
      for (unsigned further = level; further < numOfMapLevels; ++further)
        takeLabel(labelBox(place, owner.at, length, further), further);
      return place;
    }
  return std::nullopt;
}

bool LabelPlacer::isFreeFrom(const LabelPlace& place, MapPoint at, std::size_t length) const {
  unsigned level = place.level;
  while (level < numOfMapLevels && isFree(labelBox(place, at, length, level), level))
    ++level;
  return level == numOfMapLevels;
}

bool LabelPlacer::isCrossed(const LabelPlace& place, const LabelOwner& owner, std::size_t length) {
  constexpr unsigned points = 24; // of a link, so near each other that no label lies between them
  constexpr double step = 3.0;
  const Box box = labelBox(place, {0, 0}, length, 0);
  for (const MapPoint& neighbour : owner.neighbours) {
    const double x = neighbour.x - owner.at.x;
    const double y = neighbour.y - owner.at.y;
    const double distance = std::max(std::hypot(x, y), 1e-9);
    for (unsigned index = 0; index < points; ++index) {
      const double reach = (owner.radius + index * step) / distance;
      if (box.left < x * reach && x * reach < box.right && box.top < y * reach && y * reach < box.bottom)
        return true;
    }
  }
  return false;
}

LabelPlacer::Box LabelPlacer::labelBox(const LabelPlace& place, MapPoint at, std::size_t length, unsigned level) {
  const double width = textWidth * static_cast<double>(length);
  const double begin = place.anchor[0] == 's' ? 0 : place.anchor[0] == 'e' ? -width : -width / 2;
  const double left = at.x * pixelsPerUnit(level) + place.x + begin;
  const double base = at.y * pixelsPerUnit(level) + place.y;
  return {left, base - textHeight * 0.8, left + width, base + textHeight * 0.2};
}

bool LabelPlacer::isFree(const Box& box, unsigned level) const {
  const double pixels = pixelsPerUnit(level);
  bool isFree =
      box.left >= 0 && box.top >= 0 && box.right <= NetworkMap::width * pixels && box.bottom <= height_ * pixels;
  const auto covers = [&box](const Box& other) {
    return other.left < box.right && box.left < other.right && other.top < box.bottom && box.top < other.bottom;
  };
  forEachCell(box.left, box.top, box.right, box.bottom, [&](std::int64_t key) {
    const auto found = boxes_[level].find(key);
    if (found != boxes_[level].end() && std::any_of(found->second.begin(), found->second.end(), covers))
      isFree = false;
  });
  return isFree;
}

void LabelPlacer::takeLabel(const Box& box, unsigned level) {
  take({box.left - breathing, box.top - breathing, box.right + breathing, box.bottom + breathing}, level);
}

void LabelPlacer::take(const Box& box, unsigned level) {
  forEachCell(box.left, box.top, box.right, box.bottom, [&](std::int64_t key) { boxes_[level][key].push_back(box); });
}

} // namespace LagomareTools
