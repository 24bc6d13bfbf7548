#pragma once

#include "tools/export/report/NetworkMap.h"

#include <string>

namespace LagomareTools {

/// The line of a link on the map: straight, or bowed beside others that join the same two nodes.
class LinkLine {
public:
  /// `side` is how many steps it is bowed to the right of its direction; to the left if it is negative.
  LinkLine(MapPoint begin, MapPoint end, int side);

  [[nodiscard]] double length() const; ///< between the ends
  [[nodiscard]] double angle() const;  ///< degrees, clockwise from the right
  /// From 0, its begin, to 1, its end.
  [[nodiscard]] MapPoint at(double part) const;
  /// As SVG. A link from a node to itself is a loop.
  [[nodiscard]] std::string path() const;

  /// The side of a link by its number, from 0, among those that join the same two nodes; seen in one direction of the
  /// two.
  [[nodiscard]] static int sideOf(unsigned number);

private:
  MapPoint begin_;
  MapPoint bend_;
  MapPoint end_;
  bool isStraight_;
};

} // namespace LagomareTools
