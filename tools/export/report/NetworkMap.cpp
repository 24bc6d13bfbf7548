#include "tools/export/report/NetworkMap.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <vector>

namespace LagomareTools {

namespace {

constexpr double margin = 56.0; ///< room for symbols and labels at the edges
constexpr double lowest = 320.0;
constexpr double highest = 660.0;
constexpr double kilometresPerDegree = 111.2;
constexpr double extentOfOnePlace = 0.05; ///< degrees; shown around nodes that are all in one place
constexpr double nothing = 1e-6;
/// A node is left out where it lies further from the middle than so many times the usual distance.
constexpr double farOut = 15.0;

bool isOnEarth(const Node& node) {
  return std::fabs(node.getX()) <= 180.0 && std::fabs(node.getY()) < 89.9; // also false where it is no number
}

double middleOf(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

/// Parts off the nodes far from all others. With three or fewer nobody can tell which one is wrong.
void leaveOutFar(std::vector<const Node*>& nodes, std::vector<const Node*>& missing) {
  if (nodes.size() < 4)
    return;
  std::vector<double> xs;
  std::vector<double> ys;
  for (const Node* node : nodes) {
    xs.push_back(node->getX());
    ys.push_back(node->getY());
  }
  const MapPoint middle{middleOf(xs), middleOf(ys)};
  const auto distance = [middle](const Node* node) {
    return std::hypot(node->getX() - middle.x, node->getY() - middle.y);
  };
  std::vector<double> distances;
  std::transform(nodes.begin(), nodes.end(), std::back_inserter(distances), distance);
  const double limit = farOut * std::max(middleOf(distances), extentOfOnePlace);
  const auto isNear = [&](const Node* node) { return distance(node) <= limit; };
  const auto far = std::stable_partition(nodes.begin(), nodes.end(), isNear);
  missing.insert(missing.end(), far, nodes.end());
  nodes.erase(far, nodes.end());
}

struct Extent {
  double least;
  double most;

  [[nodiscard]] double length() const { return most - least; }
  [[nodiscard]] double middle() const { return (least + most) / 2.0; }
};

template <typename Coordinate>
Extent extentOf(const std::vector<const Node*>& nodes, Coordinate coordinate) {
  Extent extent{coordinate(nodes.front()), coordinate(nodes.front())};
  for (const Node* node : nodes)
    extent = {std::min(extent.least, coordinate(node)), std::max(extent.most, coordinate(node))};
  return extent;
}

} // namespace

NetworkMap::NetworkMap(const Network& network) {
  std::vector<const Node*> nodes;
  for (const auto& node : network.nodes)
    (isOnEarth(*node) ? nodes : missing_).push_back(node.get());
  leaveOutFar(nodes, missing_);
  height_ = lowest;
  if (nodes.empty())
    return;
  const Extent longitude = extentOf(nodes, [](const Node* node) { return node->getX(); });
  const Extent latitude = extentOf(nodes, [](const Node* node) { return node->getY(); });
  // A degree of longitude is shorter the further from the equator: in the map's middle both are true to scale.
  const double shrink = std::cos(latitude.middle() * std::acos(-1.0) / 180.0);
  double across = std::max(longitude.length() * shrink, nothing);
  const double down = std::max(latitude.length(), nothing);
  if (across <= nothing && down <= nothing)
    across = extentOfOnePlace;
  const double unitsPerDegree = std::min((width - 2 * margin) / across, (highest - 2 * margin) / down);
  height_ = std::max(lowest, std::ceil(latitude.length() * unitsPerDegree + 2 * margin));
  kilometresPerUnit_ = kilometresPerDegree / unitsPerDegree;
  for (const Node* node : nodes)
    points_[node] = {width / 2 + (node->getX() - longitude.middle()) * shrink * unitsPerDegree,
                     height_ / 2 - (node->getY() - latitude.middle()) * unitsPerDegree};
}

std::optional<MapPoint> NetworkMap::find(const Node* node) const {
  const auto found = points_.find(node);
  return found == points_.end() ? std::nullopt : std::optional(found->second);
}

} // namespace LagomareTools
