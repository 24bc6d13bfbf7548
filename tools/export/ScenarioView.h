#pragma once

#include "model/Calendar.h"
#include "model/Link.h"
#include "model/PriorityScenario.h"
#include "model/PrioritySettings.h"
#include "model/Reservoir.h"

#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace LagomareTools {

// What the exports ask of a scenario's elements.

struct Network {
  std::vector<std::shared_ptr<const Node>> nodes; ///< in the scenario's order, as the links
  std::vector<std::shared_ptr<const Link>> links;
};

[[nodiscard]] Network networkOf(const Scenario& scenario);

/// Null where the node has none: it is no demand, no drain and no reservoir.
[[nodiscard]] std::shared_ptr<const PrioritySettings> settingsOf(const Scenario& scenario, const Node& node);

/// Null where the node is no reservoir.
[[nodiscard]] const ReservoirInfo* reservoirInfoOf(const Node& node);

/// The hydrological states of a scenario; those of one that has none where it is no PriorityScenario.
[[nodiscard]] HydrologicalStateConfiguration statesOf(const Scenario& scenario);

/// The id of a link's end; nothing where the node is gone.
[[nodiscard]] std::optional<std::uint32_t> idOf(const std::weak_ptr<Node>& end);

using Position = std::pair<double, double>; ///< longitude, latitude, in degrees
using Line = std::vector<Position>;

/// Where a map shows an element: a node's position, a link's from upstream to downstream node. Empty where that is not
/// known.
[[nodiscard]] Line lineOf(const Node& node);
[[nodiscard]] Line lineOf(const Link& link);

/// The smallest box that holds what was included, in degrees.
struct Box {
  double west = std::numeric_limits<double>::infinity();
  double south = std::numeric_limits<double>::infinity();
  double east = -std::numeric_limits<double>::infinity();
  double north = -std::numeric_limits<double>::infinity();

  void include(const Line& line);
  [[nodiscard]] bool isEmpty() const { return east < west; }
};

/// Mean over the series' interval; nothing where the element has no such series or its interval was never set.
[[nodiscard]] std::optional<double> meanOf(const Element& element, SerieType type);

/// The value of a series that holds the same one throughout; nothing as for the mean.
[[nodiscard]] std::optional<double> constantOf(const Element& element, SerieType type);

/// Calls visit(date, value) for each step of the series' interval.
template <typename Visit>
void forEachStep(const Serie& serie, Visit visit) {
  const Interval& interval = serie.getInterval();
  for (Date date = interval.getBegin(); date <= interval.getEnd(); date += Calendar::incInterval(date, interval))
    visit(date, serie.getValue(date));
}

/// Calls visit(element, serie, state) for each series of the scenario, those without an interval included: the nodes in
/// their order, then the links. An element's base series (state 0) come first, in order of kind, then one per
/// hydrological state, from 1.
template <typename Visit>
void forEachSerie(const Scenario& scenario, Visit visit) {
  const Network network = networkOf(scenario);
  const auto visitBase = [&visit](const Element& element) {
    for (const auto& serie : element.getVectorOfSeries(0))
      visit(element, *serie, 0U);
  };
  for (const auto& node : network.nodes) {
    visitBase(*node);
    unsigned state = 0;
    if (const auto settings = settingsOf(scenario, *node))
      for (const auto& entry : settings->getPrioritySeries())
        visit(*node, *entry.second, ++state);
  }
  for (const auto& link : network.links)
    visitBase(*link);
}

[[nodiscard]] unsigned monthsOf(const Interval& interval);

} // namespace LagomareTools
