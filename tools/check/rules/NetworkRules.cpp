#include "model/TeluUtmDegreeConversion.h"
#include "tools/check/rules/Rules.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fmt/format.h>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace LagomareTools {

namespace {

constexpr double halfZone = 3.0; // degrees
constexpr double margin = 0.5;   // degrees
constexpr double falseEasting = 500000.0;
constexpr double mostNorthing = 10000000.0;

/// What may have gone wrong with a position; nothing known: empty.
const char* suspicion(double utmX, double utmY) {
  if (std::fabs(utmX) <= 180.0 && std::fabs(utmY) <= 90.0)
    return utmX == 0.0 && utmY == 0.0 ? "; both coordinates are 0" : "; these look like degrees, not metres";
  return utmX > 1000000.0 && utmY > 100000.0 && utmY < 900000.0 ? "; the two may be in each other's place" : "";
}

void checkPosition(Findings& findings, std::uint32_t id, const NodeRow& node) {
  const auto [longitude, latitude] = TeluUtmDegreeConversion::utmToDegree(*node.utmX, *node.utmY);
  const double central = TeluUtmDegreeConversion::utmToDegree(falseEasting, mostNorthing / 2.0).first;
  const bool isInside = std::fabs(longitude - central) <= halfZone + margin && latitude >= -80.0 - margin &&
                        latitude <= 84.0 + margin && *node.utmY >= 0.0 && *node.utmY <= mostNorthing;
  if (!isInside)
    findings.add(Code::positionOutsideZone, placeOf(node, id), [&, x = longitude, y = latitude] {
      if (!std::isfinite(x) || !std::isfinite(y))
        return std::string("no longitude and latitude can be computed from it; the outputs have none for it");
      return fmt::format("longitude {:.3f}, latitude {:.3f}; the zone reaches from {:.0f} to {:.0f} degrees{}", x, y,
                         central - halfZone, central + halfZone, suspicion(*node.utmX, *node.utmY));
    });
}

void checkPositions(Findings& findings, const std::map<std::uint32_t, NodeRow>& nodes) {
  std::map<std::pair<double, double>, std::uint32_t> known;
  for (const auto& [id, node] : nodes) {
    if (!node.utmX || !node.utmY)
      continue;
    checkPosition(findings, id, node);
    if (std::isnan(*node.utmX) || std::isnan(*node.utmY)) // cannot be sorted
      continue;
    const auto [first, isNew] = known.try_emplace({*node.utmX, *node.utmY}, id);
    if (!isNew)
      findings.add(Code::positionShared, placeOf(node, id), [&other = *first, &nodes] {
        return fmt::format("node {} ({}) has the same position", other.second, nodes.at(other.second).name);
      });
  }
}

template <typename Rows>
void checkNames(Findings& findings, const Rows& rows) {
  std::map<std::string_view, std::uint32_t> known;
  for (const auto& [id, element] : rows) {
    if (element.name.empty()) {
      findings.add(Code::nameEmpty, placeOf(element, id), [] { return "the name is empty"; });
      continue;
    }
    const auto [first, isNew] = known.try_emplace(element.name, id);
    if (!isNew)
      findings.add(Code::nameRepeated, placeOf(element, id), [&named = element, &other = *first] {
        return fmt::format("{} {} has the same name", named.kind == Kind::link ? "link" : "node", other.second);
      });
  }
}

void checkLinkEnds(Findings& findings, const std::map<std::uint32_t, LinkRow>& links) {
  std::map<std::pair<std::uint32_t, std::uint32_t>, std::uint32_t> known;
  for (const auto& [id, link] : links) {
    if (!link.upstream || !link.downstream)
      continue;
    if (*link.upstream == *link.downstream)
      findings.add(Code::linkToItself, placeOf(link, id),
                   [node = *link.upstream] { return "it begins and ends at node " + std::to_string(node); });
    const auto [first, isNew] = known.try_emplace({*link.upstream, *link.downstream}, id);
    if (!isNew)
      findings.add(Code::linkRepeated, placeOf(link, id), [&other = *first] {
        return fmt::format("link {} leads from node {} to node {} too", other.second, other.first.first,
                           other.first.second);
      });
  }
}

/// The nodes by the part of the network that they lie in.
class Parts {
public:
  explicit Parts(const Elements& elements) {
    for (const auto& entry : elements.nodes)
      leaders_.emplace(entry.first, entry.first);
    for (const auto& entry : elements.links) {
      const LinkRow& link = entry.second;
      if (!link.upstream || !link.downstream || leaders_.count(*link.upstream) == 0 ||
          leaders_.count(*link.downstream) == 0)
        continue;
      const auto [low, high] = std::minmax({leaderOf(*link.upstream), leaderOf(*link.downstream)});
      leaders_[high] = low;
    }
  }

  /// The nodes of each part by its smallest id.
  std::map<std::uint32_t, std::vector<std::uint32_t>> all() {
    std::map<std::uint32_t, std::vector<std::uint32_t>> parts;
    for (const auto& entry : leaders_)
      parts[leaderOf(entry.first)].push_back(entry.first);
    return parts;
  }

private:
  std::uint32_t leaderOf(std::uint32_t id) {
    std::uint32_t leader = id;
    while (leaders_.at(leader) != leader)
      leader = leaders_.at(leader);
    while (leaders_.at(id) != leader)
      id = std::exchange(leaders_.at(id), leader);
    return leader;
  }

  std::map<std::uint32_t, std::uint32_t> leaders_; ///< by node: a node of the same part, the smallest one in the end
};

void checkParts(Findings& findings, const Elements& elements) {
  const auto parts = Parts(elements).all();
  std::set<std::uint32_t> linked;
  for (const auto& entry : elements.links)
    for (const auto& end : {entry.second.upstream, entry.second.downstream})
      if (end)
        linked.insert(*end);
  const auto size = [](const auto& part) { return part.second.size(); };
  const auto largest = std::max_element(parts.begin(), parts.end(),
                                        [size](const auto& one, const auto& other) { return size(one) < size(other); });
  for (auto part = parts.begin(); part != parts.end(); ++part) {
    const NodeRow& node = elements.nodes.at(part->first);
    if (size(*part) == 1 && linked.count(part->first) == 0)
      findings.add(Code::nodeWithoutLinks, placeOf(node, part->first), [] { return "no link begins or ends there"; });
    else if (part != largest)
      findings.add(Code::networkInParts, placeOf(node, part->first), [&] {
        return fmt::format("it lies in a part of {} nodes that no link joins with the largest part, which has {}",
                           size(*part), size(*largest));
      });
  }
}

} // namespace

void checkNetwork(Inspection& inspection) {
  checkPositions(inspection.findings, inspection.elements.nodes);
  checkNames(inspection.findings, inspection.elements.nodes);
  checkNames(inspection.findings, inspection.elements.links);
  checkLinkEnds(inspection.findings, inspection.elements.links);
  if (inspection.elements.areLinksKnown)
    checkParts(inspection.findings, inspection.elements);
}

} // namespace LagomareTools
