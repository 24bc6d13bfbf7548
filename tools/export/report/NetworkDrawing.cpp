#include "tools/export/report/NetworkDrawing.h"

#include "tools/export/report/HtmlText.h"
#include "tools/export/report/KindLook.h"
#include "tools/export/report/LabelPlacer.h"
#include "tools/export/report/LinkLine.h"
#include "tools/system/Text.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fmt/format.h>
#include <map>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace LagomareTools {

namespace {

constexpr std::size_t longestLabel = 26;
constexpr double shortestArrowLink = 26.0; ///< pixels; on a shorter link an arrow head would hide it
constexpr double arrowRadius = 4.0;
constexpr double usualScaleBar = 130.0;

std::string titleOf(const Element& element) {
  return htmlText(element.getName() + " · " + element.getElementType()->name);
}

/// The classes of what is shown without a script.
std::string shownLevels() {
  std::string classes;
  for (unsigned level = 0; level <= usualMapLevel; ++level)
    classes += fmt::format("{}at-{}", level == 0 ? "" : " ", level);
  return classes;
}

/// The first level that has room for a link's arrow.
unsigned arrowLevelOf(const LinkLine& line) {
  unsigned level = 0;
  while (level < numOfMapLevels && line.length() * pixelsPerUnit(level) < shortestArrowLink)
    ++level;
  return level;
}

/// The larger, the more one looks for its name.
double weightOf(const Node& node) {
  if (const auto* info = reservoirInfoOf(node))
    return info->maximumVolume;
  return meanOf(node, SerieType::WaterDemand).value_or(meanOf(node, SerieType::NaturalAffluentFlow).value_or(0.0));
}

class Drawing {
public:
  Drawing(FileWriter& out, const Network& network)
      : out_(out), network_(network), map_(network), labels_(network.nodes.size(), map_.height()) {}

  void write();

private:
  void writeLink(const Link& link, const LinkLine& line);
  void writeNode(const Node& node);
  void writeScaleBar();
  void writeMissing(std::size_t links);
  void makeLines();
  void placeLabels();

  FileWriter& out_;
  const Network& network_;
  NetworkMap map_;
  LabelPlacer labels_;
  std::unordered_map<const Node*, LabelPlace> places_;
  std::vector<std::pair<const Link*, LinkLine>> lines_; ///< of the links whose ends are on the map
};

void Drawing::makeLines() {
  std::map<std::pair<std::uint32_t, std::uint32_t>, unsigned> linksBetween; // by the ids of the two ends
  for (const auto& link : network_.links) {
    const auto upstream = link->upstream.lock();
    const auto downstream = link->downstream.lock();
    const auto begin = map_.find(upstream.get());
    const auto end = map_.find(downstream.get());
    if (!begin || !end)
      continue;
    const int side = LinkLine::sideOf(linksBetween[std::minmax(upstream->bdId, downstream->bdId)]++);
    lines_.push_back({link.get(), LinkLine(*begin, *end, upstream->bdId < downstream->bdId ? side : -side)});
  }
}

void Drawing::placeLabels() {
  struct Candidate {
    unsigned rank;
    double weight;
    const Node* node;
  };
  std::vector<Candidate> candidates;
  for (const auto& node : network_.nodes)
    if (const auto point = map_.find(node.get())) {
      const KindLook& look = lookOf(node->getElementType()->type());
      labels_.addSymbol(*point, look.radius);
      candidates.push_back({look.rank, weightOf(*node), node.get()});
    }
  for (const auto& [link, line] : lines_) {
    labels_.addLink(line);
    labels_.addSymbol(line.at(0.5), arrowRadius, arrowLevelOf(line));
  }
  std::stable_sort(candidates.begin(), candidates.end(), [](const Candidate& one, const Candidate& other) {
    return one.rank != other.rank ? one.rank > other.rank : one.weight > other.weight;
  });
  for (const Candidate& candidate : candidates) {
    const std::string label = shortened(candidate.node->getName(), longestLabel);
    const double radius = lookOf(candidate.node->getElementType()->type()).radius;
    if (const auto place = labels_.place(*map_.find(candidate.node), radius, lengthOf(label)))
      places_.emplace(candidate.node, *place);
  }
}

void Drawing::writeLink(const Link& link, const LinkLine& line) {
  const MapPoint middle = line.at(0.5);
  const std::string path = line.path();
  out_.write(fmt::format(
      R"svg(<g data-key="{}" class="link kind-{}"><title>{}</title><path class="reach" d="{}"/><path class="line" d="{}"/>
<g transform="translate({:.1f} {:.1f}) rotate({:.0f})"><path class="arrow from-{}" d="{}"/></g></g>
)svg",
      keyOf(link), link.getElementType()->id, titleOf(link), path, path, middle.x, middle.y, line.angle(),
      arrowLevelOf(line), arrowPath(link.getIsBidirectional())));
}

void Drawing::writeNode(const Node& node) {
  const MapPoint point = *map_.find(&node);
  const auto& kind = *node.getElementType();
  out_.write(fmt::format(
      R"svg(<g data-key="{}" class="node kind-{}" transform="translate({:.1f} {:.1f})"><title>{}</title>
<path class="symbol" d="{}"/>)svg",
      keyOf(node), kind.id, point.x, point.y, titleOf(node), lookOf(kind.type()).path));
  const auto place = places_.find(&node);
  if (place != places_.end())
    out_.write(fmt::format(R"(<text class="label from-{}" x="{:.1f}" y="{:.1f}" text-anchor="{}">{}</text>)",
                           place->second.level, place->second.x, place->second.y, place->second.anchor,
                           htmlText(shortened(node.getName(), longestLabel))));
  out_.write("</g>\n");
}

void Drawing::writeScaleBar() {
  if (map_.kilometresPerUnit() <= 0.0)
    return;
  const double kilometres = usualScaleBar * map_.kilometresPerUnit();
  const double decade = std::pow(10.0, std::floor(std::log10(kilometres)));
  const double round = decade * (kilometres >= 5 * decade ? 5 : kilometres >= 2 * decade ? 2 : 1);
  const double length = round / map_.kilometresPerUnit();
  const std::string text = round >= 1 ? figureText(round) + " km" : roundedText(round * 1000) + " m";
  out_.write(fmt::format(R"svg(<g class="scale-bar" transform="translate(14 {:.1f})"><g class="fixed">
<path d="M0-5V0H{:.1f}V-5"/><text x="{:.1f}" y="0">{}</text></g></g>
)svg",
                         map_.height() - 12, length, length + 6, text));
}

void Drawing::writeMissing(std::size_t links) {
  if (map_.missing().empty() && links == 0)
    return;
  constexpr std::size_t named = 10;
  const auto& missing = map_.missing();
  std::string text = "Not on this map: ";
  for (std::size_t index = 0; index < std::min(named, missing.size()); ++index)
    text += (index == 0 ? "" : ", ") + missing[index]->getName() + " (" + std::to_string(missing[index]->bdId) + ")";
  if (missing.size() > named)
    text += fmt::format(" and {} more", missing.size() - named);
  if (!missing.empty())
    text += missing.size() == 1 ? ", without a position or far from all others"
                                : ", all without a position or far from all others";
  if (links != 0)
    text += (missing.empty() ? "" : "; ") + counted(links, "link") + " of which an end is not on it";
  out_.write("<p class=\"remark\">" + htmlText(text) + ".</p>\n");
}

void Drawing::write() {
  makeLines();
  placeLabels();
  out_.write(fmt::format(
      R"svg(<svg class="network {} size-{:.0f}" viewBox="0 0 {:.0f} {:.0f}" role="img" aria-label="Map of the
network: {}, {}. The tables of elements say the same in words." data-room="{:.4g}" data-kilometres="{:.6g}">
<g class="world">
)svg",
      shownLevels(), symbolScale(1.0, labels_.room()) * 10, NetworkMap::width, map_.height(),
      counted(network_.nodes.size(), "node"), counted(network_.links.size(), "link"), labels_.room(),
      map_.kilometresPerUnit()));
  for (const auto& [link, line] : lines_)
    writeLink(*link, line);
  for (const auto& node : network_.nodes)
    if (map_.find(node.get()))
      writeNode(*node);
  out_.write("</g>\n");
  writeScaleBar();
  out_.write("</svg>\n");
  writeMissing(network_.links.size() - lines_.size());
}

} // namespace

void writeNetworkDrawing(FileWriter& out, const Network& network) { Drawing(out, network).write(); }

std::string keyOf(const Element& element) {
  return (dynamic_cast<const Link*>(&element) != nullptr ? "link-" : "node-") + std::to_string(element.bdId);
}

} // namespace LagomareTools
