#pragma once

#include "tools/export/report/LinkLine.h"
#include "tools/export/report/MapBoxes.h"
#include "tools/export/report/NetworkMap.h"

#include <array>
#include <cstddef>
#include <optional>

namespace LagomareTools {

/// The steps in which the map shows more the nearer one looks. At the usual level a unit of the map is a pixel; two
/// levels further it is two. Symbols and labels keep their size.
constexpr unsigned numOfMapLevels = 15;
constexpr unsigned usualMapLevel = 2;

[[nodiscard]] double pixelsPerUnit(unsigned level);
/// How large a map of so many nodes can show their symbols at a pixel per unit.
[[nodiscard]] double roomForSymbols(std::size_t nodes);
/// The size of symbols at a level, at most 1.
[[nodiscard]] double symbolScale(double pixelsPerUnit, double room);

/// A label's place beside its node, in pixels: where its text is anchored, and the first level that has room for it.
struct LabelPlace {
  double x;
  double y;           ///< of the base line
  const char* anchor; ///< as SVG's text-anchor
  unsigned level;
};

/// Finds places for labels at which they cover neither a symbol nor a label placed before, and no link if that can be.
/// A label that is shown at a level stays at all further ones.
class LabelPlacer {
public:
  static constexpr double textHeight = 12.0;
  static constexpr double textWidth = 6.6; ///< of a character, on the whole

  /// For a map of so many nodes and this height; labels do not run over its edges.
  LabelPlacer(std::size_t nodes, double height) : room_(roomForSymbols(nodes)), height_(height) {}

  [[nodiscard]] double room() const { return room_; }

  /// Keeps a symbol's place free, from a level on. All symbols and links come before the first label.
  void addSymbol(MapPoint at, double radius, unsigned firstLevel = 0);
  void addLink(const LinkLine& line);
  /// A place for a label of so many characters beside a symbol; nothing where there is no room at any level.
  [[nodiscard]] std::optional<LabelPlace> place(MapPoint at, double radius, std::size_t length);

private:
  struct Label {
    MapPoint at;
    double radius;
    std::size_t length;
  };

  [[nodiscard]] static MapBox boxOf(const Label& label, const LabelPlace& place, unsigned level);
  /// A place that is free at this and all further levels, and at this level crossed by a link or not, as is asked.
  [[nodiscard]] std::optional<LabelPlace> find(const Label& label, unsigned level, bool isCrossed) const;
  [[nodiscard]] bool isFree(const Label& label, const LabelPlace& place) const;

  double room_;
  double height_;
  std::array<MapBoxes, numOfMapLevels> taken_; ///< by level, as links_
  std::array<MapBoxes, numOfMapLevels> links_;
};

} // namespace LagomareTools
