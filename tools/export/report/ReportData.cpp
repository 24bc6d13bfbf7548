#include "model/PriorityReservoirSettings.h"
#include "tools/export/report/HtmlText.h"
#include "tools/export/report/NetworkDrawing.h"
#include "tools/export/report/PackedNumbers.h"
#include "tools/export/report/ReportParts.h"
#include "tools/system/Text.h"

#include <cmath>
#include <cstdint>
#include <fmt/format.h>
#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <utility>
#include <vector>

namespace LagomareTools {

namespace {

using Json = nlohmann::ordered_json;

/// Gathers what the script shows of each element, and the numbers of all series.
class Gatherer {
public:
  explicit Gatherer(const Scenario& scenario) : scenario_(scenario) {}

  [[nodiscard]] Json dataOf(const Network& network);
  [[nodiscard]] const PackedNumbers& numbers() const { return numbers_; }

private:
  [[nodiscard]] Json identityOf(const Element& element);
  [[nodiscard]] Json dataOf(const Node& node);
  [[nodiscard]] Json dataOf(const Link& link);
  /// The index of a series' name and unit.
  [[nodiscard]] std::size_t labelOf(const Serie& serie);
  /// Adds label, state (0 for a base series), first month (from January of the year 0) and numbers, by their index.
  void addSerie(Json& series, const Serie& serie, std::size_t state);
  void addBaseSeries(Json& series, const Element& element);

  const Scenario& scenario_;
  PackedNumbers numbers_;
  Json kindNames_ = Json::object();
  Json serieLabels_ = Json::array();
  std::map<std::pair<std::int32_t, std::int32_t>, std::size_t> labels_; ///< by the ids of kind and unit
};

void addFigure(Json& figures, const char* label, const std::string& text) {
  if (!text.empty())
    figures.push_back({label, text});
}

std::string withUnit(const std::string& figure, const char* unit) {
  return figure.empty() ? figure : figure + " " + unit;
}

/// To about a metre; the positions were computed.
std::string positionOf(const Node& node) {
  if (!std::isfinite(node.getX()) || !std::isfinite(node.getY()))
    return "none";
  return fmt::format("{:.5f}°, {:.5f}°", node.getX(), node.getY());
}

void addReservoirFigures(Json& figures, const ReservoirInfo& info) {
  addFigure(figures, "Maximum volume", withUnit(figureText(info.maximumVolume), "hm³"));
  addFigure(figures, "Minimum volume", withUnit(figureText(info.minimumVolume), "hm³"));
  addFigure(figures, "Initial volume", withUnit(figureText(info.initialVolume), "hm³"));
}

void addSettingsFigures(Json& figures, const PrioritySettings& settings) {
  addFigure(figures, "Priority", std::to_string(settings.priority));
  std::string priorities;
  for (const auto& entry : settings.getPrioritySeries())
    priorities += (priorities.empty() ? "" : ", ") + std::to_string(entry.first);
  addFigure(figures, "Priority by state", priorities);
  if (const auto* reservoir = dynamic_cast<const PriorityReservoirSettings*>(&settings))
    addFigure(figures, "Counts for the system's state", reservoir->getIsHydrologicalStateSystem() ? "yes" : "no");
}

Json Gatherer::identityOf(const Element& element) {
  const auto& kind = *element.getElementType();
  kindNames_[std::to_string(kind.id)] = kind.name;
  return {{"key", keyOf(element)}, {"id", element.bdId}, {"kind", kind.id}, {"name", plainText(element.getName())}};
}

std::size_t Gatherer::labelOf(const Serie& serie) {
  const auto [place, isNew] = labels_.try_emplace({serie.getSerieType().id, serie.getUnit().id}, serieLabels_.size());
  if (isNew)
    serieLabels_.push_back({serie.getSerieType().name, serie.getUnit().name});
  return place->second;
}

void Gatherer::addSerie(Json& series, const Serie& serie, std::size_t state) {
  if (serie.getInterval().isEmpty())
    return;
  std::vector<double> values;
  forEachStep(serie, [&values](const Date&, double value) { values.push_back(value); });
  const Date& begin = serie.getInterval().getBegin();
  series.push_back({labelOf(serie), state, begin.getYear() * 12U + begin.getMonth() - 1U, numbers_.add(values)});
}

void Gatherer::addBaseSeries(Json& series, const Element& element) {
  for (const auto& serie : element.getVectorOfSeries(0))
    addSerie(series, *serie, 0);
}

Json Gatherer::dataOf(const Node& node) {
  Json data = identityOf(node);
  Json figures = Json::array();
  Json series = Json::array();
  addBaseSeries(series, node);
  if (const auto* info = reservoirInfoOf(node)) {
    addReservoirFigures(figures, *info);
    if (!info->areaVolumeCurve.empty())
      data["curve"] = info->areaVolumeCurve;
  }
  if (const auto settings = settingsOf(scenario_, node)) {
    addSettingsFigures(figures, *settings);
    std::size_t state = 0;
    for (const auto& entry : settings->getPrioritySeries())
      addSerie(series, *entry.second, ++state);
  }
  addFigure(figures, "Longitude, latitude", positionOf(node));
  data["figures"] = figures;
  data["series"] = series;
  return data;
}

Json Gatherer::dataOf(const Link& link) {
  Json data = identityOf(link);
  Json series = Json::array();
  addBaseSeries(series, link);
  for (const auto& [name, end] : {std::pair("upstream", idOf(link.upstream)), {"downstream", idOf(link.downstream)}})
    if (end)
      data[name] = *end;
  data["isTwoWay"] = link.getIsBidirectional();
  data["figures"] = Json::array();
  data["series"] = series;
  return data;
}

Json Gatherer::dataOf(const Network& network) {
  Json elements = Json::array();
  for (const auto& node : network.nodes)
    elements.push_back(dataOf(*node));
  for (const auto& link : network.links)
    elements.push_back(dataOf(*link));
  Json numbers = Json::array();
  for (const PackedNumbers::Entry& entry : numbers_.entries())
    numbers.push_back({entry.offset, entry.length, entry.count, entry.width, entry.scale, entry.least});
  return {{"kindNames", kindNames_}, {"serieLabels", serieLabels_}, {"elements", elements}, {"numbers", numbers}};
}

/// Inside a script element nothing but "<" could end or change it, and in JSON it stands only in texts.
std::string harmless(const std::string& json) {
  std::string text;
  for (const char c : json)
    if (c == '<')
      text += "\\u003c";
    else
      text += c;
  return text;
}

} // namespace

void writeReportData(FileWriter& out, const Scenario& scenario, const Network& network) {
  Gatherer gatherer(scenario);
  out.write("<script type=\"application/json\" id=\"data\">");
  out.write(harmless(gatherer.dataOf(network).dump()));
  out.write("</script>\n<script type=\"text/plain\" id=\"numbers\">");
  out.write(gatherer.numbers().text());
  out.write("</script>\n");
}

} // namespace LagomareTools
