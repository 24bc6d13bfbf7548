#pragma once

#include "tools/export/report/NetworkMap.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

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

/// What a label stands beside.
struct LabelOwner {
  MapPoint at;
  double radius;                    ///< of its symbol, in pixels
  std::vector<MapPoint> neighbours; ///< where its links lead
};

/// A label's place beside its node, in pixels: where its text is anchored, and the first level that has room for it.
struct LabelPlace {
  double x;
  double y;           ///< of the base line
  const char* anchor; ///< as SVG's text-anchor
  unsigned level;
};

/// Finds places for labels at which they cover neither a symbol nor a label placed before. A label that is shown at a
/// level stays at all further ones.
class LabelPlacer {
public:
  static constexpr double textHeight = 12.0;
  static constexpr double textWidth = 6.6; ///< of a character, on the whole

  /// For a map of so many nodes and this height; labels do not run over its edges.
  LabelPlacer(std::size_t nodes, double height) : room_(roomForSymbols(nodes)), height_(height) {}

  [[nodiscard]] double room() const { return room_; }

  /// Keeps a symbol's place free. All symbols come before the first label.
  void addSymbol(MapPoint at, double radius);
  /// A place for a label of so many characters, clear of the node's own links if it can be; nothing where there is no
  /// room at any level.
  [[nodiscard]] std::optional<LabelPlace> place(const LabelOwner& owner, std::size_t length);

private:
  struct Box {
    double left;
    double top;
    double right;
    double bottom;
  };

  [[nodiscard]] std::optional<LabelPlace> placeAt(const LabelOwner& owner, std::size_t length, unsigned level,
                                                  bool isCrossedThere);
  [[nodiscard]] static Box labelBox(const LabelPlace& place, MapPoint at, std::size_t length, unsigned level);
  [[nodiscard]] static bool isCrossed(const LabelPlace& place, const LabelOwner& owner, std::size_t length);
  [[nodiscard]] bool isFreeFrom(const LabelPlace& place, MapPoint at, std::size_t length) const;
  [[nodiscard]] bool isFree(const Box& box, unsigned level) const;
  void takeLabel(const Box& box, unsigned level);
  void take(const Box& box, unsigned level);

  double room_;
  double height_;
  std::array<std::unordered_map<std::int64_t, std::vector<Box>>, numOfMapLevels>
      boxes_; ///< by level, by cell of a grid
};

} // namespace LagomareTools
