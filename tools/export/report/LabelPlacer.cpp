#include "tools/export/report/LabelPlacer.h"

#include <algorithm>
#include <cmath>

namespace LagomareTools {

namespace {

constexpr double gap = 3.0;       ///< between a symbol and its label
constexpr double breathing = 4.0; ///< free room between labels
constexpr double linkWidth = 4.0;

/// The places for a label beside a symbol, the best first.
std::array<LabelPlace, 8> placesAround(double radius, unsigned level) {
  const double aside = radius + gap;
  const double middle = LabelPlacer::textHeight * 0.35;
  const double corner = radius * 0.7 + 1.0;
  const double hanging = LabelPlacer::textHeight * 0.75;
  return {{{aside, middle, "start", level},
           {-aside, middle, "end", level},
           {corner, -corner, "start", level},
           {corner, corner + hanging, "start", level},
           {-corner, -corner, "end", level},
           {-corner, corner + hanging, "end", level},
           {0, aside + hanging, "middle", level},
           {0, -aside, "middle", level}}};
}

MapBox boxAround(MapPoint at, double pixels, double radius) {
  return MapBox{at.x * pixels, at.y * pixels, at.x * pixels, at.y * pixels}.grownBy(radius);
}

} // namespace

double pixelsPerUnit(unsigned level) { return std::exp2((static_cast<double>(level) - usualMapLevel) / 2); }

double roomForSymbols(std::size_t nodes) {
  return std::sqrt(160.0 / static_cast<double>(std::max<std::size_t>(nodes, 1)));
}

double symbolScale(double pixelsPerUnit, double room) { return std::clamp(pixelsPerUnit * room, 0.4, 1.0); }

void LabelPlacer::addSymbol(MapPoint at, double radius, unsigned firstLevel) {
  for (unsigned level = firstLevel; level < numOfMapLevels; ++level) {
    const double pixels = pixelsPerUnit(level);
    taken_[level].add(boxAround(at, pixels, radius * symbolScale(pixels, room_)));
  }
}

void LabelPlacer::addLink(const LinkLine& line) {
  for (unsigned level = 0; level < numOfMapLevels; ++level) {
    const double pixels = pixelsPerUnit(level);
    const auto steps = static_cast<unsigned>(line.length() * pixels / linkWidth) + 1;
    for (unsigned step = 0; step <= steps; ++step)
      links_[level].add(boxAround(line.at(static_cast<double>(step) / steps), pixels, linkWidth / 2));
  }
}

std::optional<LabelPlace> LabelPlacer::place(MapPoint at, double radius, std::size_t length) {
  constexpr unsigned patience = 1; // levels that one waits for a place which no link crosses
  const Label label{at, radius, length};
  std::optional<LabelPlace> place;
  for (unsigned level = 0; !place && level < numOfMapLevels + patience; ++level) {
    if (level < numOfMapLevels)
      place = find(label, level, false);
    if (!place && level >= patience)
      place = find(label, level - patience, true);
  }
  if (place)
    for (unsigned level = place->level; level < numOfMapLevels; ++level)
      taken_[level].add(boxOf(label, *place, level).grownBy(breathing));
  return place;
}

std::optional<LabelPlace> LabelPlacer::find(const Label& label, unsigned level, bool isCrossed) const {
  for (const LabelPlace& place : placesAround(label.radius, level))
    if (links_[level].isFree(boxOf(label, place, level)) != isCrossed && isFree(label, place))
      return place;
  return std::nullopt;
}

bool LabelPlacer::isFree(const Label& label, const LabelPlace& place) const {
  for (unsigned level = place.level; level < numOfMapLevels; ++level) {
    const MapBox box = boxOf(label, place, level);
    const double pixels = pixelsPerUnit(level);
    if (box.left < 0 || box.top < 0 || box.right > NetworkMap::width * pixels || box.bottom > height_ * pixels ||
        !taken_[level].isFree(box))
      return false;
  }
  return true;
}

MapBox LabelPlacer::boxOf(const Label& label, const LabelPlace& place, unsigned level) {
  const double width = textWidth * static_cast<double>(label.length);
  const double begin = place.anchor[0] == 's' ? 0 : place.anchor[0] == 'e' ? -width : -width / 2;
  const double left = label.at.x * pixelsPerUnit(level) + place.x + begin;
  const double base = label.at.y * pixelsPerUnit(level) + place.y;
  return {left, base - textHeight * 0.8, left + width, base + textHeight * 0.2};
}

} // namespace LagomareTools
