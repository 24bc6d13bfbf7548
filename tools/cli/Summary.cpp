#include "tools/cli/Summary.h"

#include "tools/export/NumberText.h"
#include "tools/export/ScenarioView.h"
#include "tools/system/Text.h"

#include <algorithm>
#include <fmt/format.h>
#include <set>

namespace LagomareTools {

namespace {

std::string line(const char* label, const std::string& text) { return fmt::format("  {:<22}{}\n", label, text); }

std::string periodOf(const Interval& interval) {
  return fmt::format("{} to {} ({})", isoMonth(interval.getBegin()), isoMonth(interval.getEnd()),
                     counted(monthsOf(interval), "month"));
}

std::string textOf(const HydrologicalStateConfiguration& states) {
  const std::string kind = states.getCurrentHydrologicalStateType().name;
  if (states.getNumOfStates() == 0)
    return "none (" + kind + ")";
  std::string boundaries;
  for (const double boundary : states.getXValues())
    boundaries += (boundaries.empty() ? "; boundaries " : ", ") + std::string(NumberText(boundary).view());
  return fmt::format("{} ({}{})", states.getNumOfStates(), kind, boundaries);
}

template <typename Elements>
std::size_t countOf(const Elements& elements, const std::set<ElementType>& types) {
  return static_cast<std::size_t>(std::count_if(elements.begin(), elements.end(), [&types](const auto& element) {
    return types.count(element->getElementType()->type()) != 0;
  }));
}

std::string linksOf(const Network& network) {
  const auto isTwoWay = [](const auto& link) { return link->getIsBidirectional(); };
  return fmt::format("{} ({} natural, {} artificial; {} bidirectional)", network.links.size(),
                     countOf(network.links, {ElementType::NaturalLink}),
                     countOf(network.links, {ElementType::ArtificialLink}),
                     std::count_if(network.links.begin(), network.links.end(), isTwoWay));
}

std::string countsOf(const Network& network) {
  const auto count = [&network](const std::set<ElementType>& types) {
    return std::to_string(countOf(network.nodes, types));
  };
  return line("reservoirs", count(reservoirTypes)) + line("demands", count(consumptiveDemandTypes)) +
         line("drains", count({ElementType::DrainDemand})) + line("junctions", count(junctionTypes)) +
         line("links", linksOf(network));
}

} // namespace

std::string summaryOf(const ExportInput& input) {
  const Imported& imported = input.imported;
  std::string summary = plainText(imported.result.message) + '\n';
  summary += line("dialect",
                  std::string(nameOf(imported.dialect)) + (imported.isDialectFound ? " (found by its tables)" : ""));
  if (!imported.result.scenario)
    return summary;
  const Scenario& scenario = *imported.result.scenario;
  summary +=
      line("UTM zone", textOf(input.utmZone) + (input.isZoneAssumed ? " (assumed; --utm-zone sets another)" : ""));
  summary += line("scenario", oneLine(scenario.getName()));
  summary += line("period", periodOf(scenario.getInterval()));
  summary += line("hydrological states", textOf(statesOf(scenario)));
  return summary + countsOf(networkOf(scenario));
}

} // namespace LagomareTools
