#include "model/PriorityReservoirSettings.h"
#include "tools/export/report/HtmlText.h"
#include "tools/export/report/NetworkDrawing.h"
#include "tools/export/report/PackedNumbers.h"
#include "tools/export/report/ReportParts.h"
#include "tools/system/Text.h"

#include <cmath>
#include <fmt/format.h>
#include <nlohmann/json.hpp>

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
  [[nodiscard]] static Json identityOf(const Element& element);
  [[nodiscard]] Json dataOf(const Node& node);
  [[nodiscard]] Json dataOf(const Link& link);
  /// State 0 is the base series.
  void addSerie(Json& series, const Serie& serie, std::size_t state);
  void addBaseSeries(Json& series, const Element& element);

  const Scenario& scenario_;
  PackedNumbers numbers_;
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
  return {{"key", keyOf(element)},
          {"id", element.bdId},
          {"kind", element.getElementType()->id},
          {"kindName", element.getElementType()->name},
          {"name", plainText(element.getName())}};
}

void Gatherer::addSerie(Json& series, const Serie& serie, std::size_t state) {
  if (serie.getInterval().isEmpty())
    return;
  std::vector<double> values;
  forEachStep(serie, [&values](const Date&, double value) { values.push_back(value); });
  series.push_back({{"kind", serie.getSerieType().id},
                    {"name", serie.getSerieType().name},
                    {"unit", serie.getUnit().name},
                    {"state", state},
                    {"begin", {serie.getInterval().getBegin().getYear(), serie.getInterval().getBegin().getMonth()}},
                    {"numbers", numbers_.add(values)}});
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
  return {{"elements", elements}, {"numbers", numbers}};
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
