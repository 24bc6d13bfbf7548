#include "tools/export/ScenarioView.h"

#include <algorithm>
#include <cmath>

namespace LagomareTools {

namespace {

/// Null where the element has no such series or its interval was never set.
std::shared_ptr<const Serie> knownSerie(const Element& element, SerieType type) {
  const auto serie = element.getSeriesInput()->find(type);
  return serie && !serie->getInterval().isEmpty() ? serie : nullptr;
}

} // namespace

Network networkOf(const Scenario& scenario) {
  Network network;
  for (const auto& element : scenario.getElements())
    if (auto node = std::dynamic_pointer_cast<const Node>(element))
      network.nodes.push_back(std::move(node));
    else if (auto link = std::dynamic_pointer_cast<const Link>(element))
      network.links.push_back(std::move(link));
  return network;
}

std::shared_ptr<const PrioritySettings> settingsOf(const Scenario& scenario, const Node& node) {
  return std::dynamic_pointer_cast<const PrioritySettings>(scenario.getSettingsManager().getSettings(node.bdId));
}

const ReservoirInfo* reservoirInfoOf(const Node& node) {
  const auto* const reservoir = dynamic_cast<const Reservoir*>(&node);
  return reservoir == nullptr ? nullptr : &reservoir->getReservoirInfo();
}

HydrologicalStateConfiguration statesOf(const Scenario& scenario) {
  const auto* const priorities = dynamic_cast<const PriorityScenario*>(&scenario);
  return priorities == nullptr ? HydrologicalStateConfiguration() : *priorities->getHydrologicalStateConfiguration();
}

std::optional<std::uint32_t> idOf(const std::weak_ptr<Node>& end) {
  const auto node = end.lock();
  return node ? std::optional(node->bdId) : std::nullopt;
}

Line lineOf(const Node& node) {
  if (!std::isfinite(node.getX()) || !std::isfinite(node.getY()))
    return {};
  return {{node.getX(), node.getY()}};
}

Line lineOf(const Link& link) {
  Line line;
  for (const auto& end : {link.upstream.lock(), link.downstream.lock()})
    if (end)
      for (const Position& position : lineOf(*end))
        line.push_back(position);
  return line.size() == 2 ? line : Line();
}

void Box::include(const Line& line) {
  for (const auto& [longitude, latitude] : line) {
    west = std::min(west, longitude);
    south = std::min(south, latitude);
    east = std::max(east, longitude);
    north = std::max(north, latitude);
  }
}

std::optional<double> meanOf(const Element& element, SerieType type) {
  const auto serie = knownSerie(element, type);
  if (!serie)
    return std::nullopt;
  double sum = 0.0;
  forEachStep(*serie, [&sum](const Date&, double value) { sum += value; });
  return sum / monthsOf(serie->getInterval());
}

std::optional<double> constantOf(const Element& element, SerieType type) {
  const auto serie = knownSerie(element, type);
  return serie ? std::optional(serie->getValue(serie->getInterval().getBegin())) : std::nullopt;
}

unsigned monthsOf(const Interval& interval) {
  const auto month = [](const Date& date) { return date.getYear() * 12U + date.getMonth(); };
  return interval.isEmpty() ? 0U : month(interval.getEnd()) - month(interval.getBegin()) + 1U;
}

} // namespace LagomareTools
