#include "tools/export/Table.h"

#include "tools/system/Text.h"

#include <cmath>
#include <optional>

namespace LagomareTools {

namespace {

using Cells = std::vector<Cell>;

Cell real(std::optional<double> value) { return value && std::isfinite(*value) ? Cell(*value) : Cell(); }

Cell integer(std::optional<std::int64_t> value) { return value ? Cell(*value) : Cell(); }

Cell text(const std::string& value) { return plainText(value); }

Cells identityOf(const Element& element) {
  const auto& kind = *element.getElementType();
  return {integer(element.bdId), integer(kind.id), text(kind.name), text(element.getName())};
}

const Scenario& scenarioOf(const ExportInput& input) { return *input.imported.result.scenario; }

void forEachNode(const ExportInput& input, const VisitRow& visit) {
  for (const auto& node : networkOf(scenarioOf(input)).nodes) {
    Cells cells = identityOf(*node);
    const auto settings = settingsOf(scenarioOf(input), *node);
    const auto* const info = reservoirInfoOf(*node);
    const auto volume = [info](double ReservoirInfo::*member) {
      return info == nullptr ? Cell() : real(info->*member);
    };
    cells.insert(cells.end(), {real(node->getX()), real(node->getY()), settings ? integer(settings->priority) : Cell(),
                               volume(&ReservoirInfo::initialVolume), volume(&ReservoirInfo::minimumVolume),
                               volume(&ReservoirInfo::maximumVolume)});
    visit(cells, lineOf(*node));
  }
}

void forEachLink(const ExportInput& input, const VisitRow& visit) {
  for (const auto& link : networkOf(scenarioOf(input)).links) {
    Cells cells = identityOf(*link);
    cells.insert(cells.end(),
                 {integer(idOf(link->upstream)), integer(idOf(link->downstream)), Cell(link->getIsBidirectional()),
                  real(constantOf(*link, SerieType::LinkLimitSerie)), real(constantOf(*link, SerieType::LinkLoss))});
    visit(cells, lineOf(*link));
  }
}

void forEachMonth(const ExportInput& input, const VisitRow& visit) {
  forEachSerie(scenarioOf(input), [&visit](const Element& element, const Serie& serie, unsigned state) {
    const auto& type = serie.getSerieType();
    Cells cells{integer(element.bdId),
                integer(element.getElementType()->id),
                text(element.getName()),
                integer(type.id),
                text(type.name),
                text(serie.getUnit().name),
                integer(state),
                Cell(),
                Cell()};
    forEachStep(serie, [&](const Date& date, double value) {
      cells[7] = date;
      cells[8] = real(value);
      visit(cells, {});
    });
  });
}

void forEachPoint(const ExportInput& input, const VisitRow& visit) {
  for (const auto& node : networkOf(scenarioOf(input)).nodes)
    if (const auto* const info = reservoirInfoOf(*node)) {
      std::int64_t point = 0;
      for (const auto& row : info->areaVolumeCurve)
        visit({integer(node->bdId), Cell(++point), real(row.at(0)), real(row.at(1)), real(row.at(2))}, {});
    }
}

void forEachState(const ExportInput& input, const VisitRow& visit) {
  const auto states = statesOf(scenarioOf(input));
  const auto& boundaries = states.getXValues();
  const auto boundary = [&boundaries](std::size_t index) {
    return index < boundaries.size() ? real(boundaries[index]) : Cell();
  };
  for (std::size_t state = 1; state <= states.getNumOfStates(); ++state)
    visit({integer(static_cast<std::int64_t>(state)), state == 1 ? Cell() : boundary(state - 2), boundary(state - 1)},
          {});
}

void forTheScenario(const ExportInput& input, const VisitRow& visit) {
  const Interval& interval = scenarioOf(input).getInterval();
  visit({text(scenarioOf(input).getName()), Cell(interval.getBegin()), Cell(interval.getEnd()),
         text(nameOf(input.imported.dialect)), text(textOf(input.utmZone))},
        {});
}

constexpr auto integers = ColumnType::integer;
constexpr auto reals = ColumnType::real;
constexpr auto texts = ColumnType::text;
constexpr auto dates = ColumnType::date;
constexpr auto truths = ColumnType::truth;

} // namespace

Cell valueAt(const Serie& serie, const Date& month) {
  const Interval& interval = serie.getInterval();
  return interval.getBegin() <= month && month <= interval.getEnd() ? real(serie.getValue(month)) : Cell();
}

const Table nodesTable{"nodes",
                       {{"id", integers},
                        {"kind", integers},
                        {"kind_name", texts},
                        {"name", texts},
                        {"longitude", reals},
                        {"latitude", reals},
                        {"priority", integers},
                        {"initial_volume_hm3", reals},
                        {"minimum_volume_hm3", reals},
                        {"maximum_volume_hm3", reals}},
                       true,
                       forEachNode};

const Table linksTable{"links",
                       {{"id", integers},
                        {"kind", integers},
                        {"kind_name", texts},
                        {"name", texts},
                        {"upstream_id", integers},
                        {"downstream_id", integers},
                        {"bidirectional", truths},
                        {"flow_limit_m3s", reals},
                        {"loss_percent", reals}},
                       true,
                       forEachLink};

const Table seriesTable{"series",
                        {{"element_id", integers},
                         {"element_kind", integers},
                         {"element_name", texts},
                         {"series_kind", integers},
                         {"series_name", texts},
                         {"unit", texts},
                         {"state", integers},
                         {"date", dates},
                         {"value", reals}},
                        true,
                        forEachMonth};

const Table curvesTable{
    "curves",
    {{"reservoir_id", integers}, {"point", integers}, {"level_m", reals}, {"area_km2", reals}, {"volume_hm3", reals}},
    true,
    forEachPoint};

const Table statesTable{
    "states", {{"state", integers}, {"lower_boundary", reals}, {"upper_boundary", reals}}, false, forEachState};

const Table scenarioTable{"scenario",
                          {{"name", texts}, {"begin", dates}, {"end", dates}, {"dialect", texts}, {"utm_zone", texts}},
                          false,
                          forTheScenario};

} // namespace LagomareTools
