#pragma once

#include "tools/export/ScenarioView.h"

#include <optional>
#include <unordered_map>
#include <vector>

namespace LagomareTools {

/// A place on the map: x to the right, y down.
struct MapPoint {
  double x;
  double y;
};

/// The network's nodes on a map that is true to scale: its unit is a pixel where it is shown 700 pixels wide. Keeps
/// pointers to the nodes.
class NetworkMap {
public:
  static constexpr double width = 700.0;

  explicit NetworkMap(const Network& network);

  [[nodiscard]] double height() const { return height_; }
  [[nodiscard]] double kilometresPerUnit() const { return kilometresPerUnit_; }

  /// Nothing where the node is not on the map.
  [[nodiscard]] std::optional<MapPoint> find(const Node* node) const;
  /// The nodes without a position that a map could show, and those so far from all others that the map would
  /// show nothing else.
  [[nodiscard]] const std::vector<const Node*>& missing() const { return missing_; }

private:
  double height_ = 0.0;
  double kilometresPerUnit_ = 0.0;
  std::unordered_map<const Node*, MapPoint> points_;
  std::vector<const Node*> missing_;
};

} // namespace LagomareTools
