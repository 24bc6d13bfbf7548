#pragma once

#include "model/Calendar.h"
#include "model/Link.h"
#include "model/PriorityScenario.h"
#include "model/PrioritySettings.h"
#include "model/Reservoir.h"

#include <optional>

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

[[nodiscard]] unsigned monthsOf(const Interval& interval);

} // namespace LagomareTools
