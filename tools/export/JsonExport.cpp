#include "tools/export/JsonExport.h"

#include "model/PriorityReservoirSettings.h"
#include "tools/export/JsonWriter.h"
#include "tools/export/NumberText.h"
#include "tools/export/ScenarioView.h"

#include <cstdint>
#include <vector>

namespace LagomareTools {

namespace {

constexpr std::int64_t formatVersion = 1;

void writeDate(JsonWriter& json, const char* name, const Interval& interval, const Date& date) {
  json.key(name);
  if (interval.isEmpty())
    json.null();
  else
    json.text(isoDate(date));
}

void writeInterval(JsonWriter& json, const Interval& interval) {
  writeDate(json, "begin", interval, interval.getBegin());
  writeDate(json, "end", interval, interval.getEnd());
}

void writeSerie(JsonWriter& json, const Serie& serie) {
  json.beginObject();
  json.integer("kind", serie.getSerieType().id);
  json.text("name", serie.getSerieType().name);
  json.text("unit", serie.getUnit().name);
  writeInterval(json, serie.getInterval());
  json.key("values");
  json.beginArray();
  forEachStep(serie, [&json](const Date&, double value) { json.number(value); });
  json.endArray();
  json.endObject();
}

void writeSeries(JsonWriter& json, const Element& element) {
  json.key("series");
  json.beginArray();
  for (const auto& serie : element.getVectorOfSeries(0)) {
    json.breakLine();
    writeSerie(json, *serie);
  }
  json.endArray();
}

void writeIdentity(JsonWriter& json, const Element& element) {
  json.breakLine();
  json.beginObject();
  json.integer("id", element.bdId);
  json.integer("kind", element.getElementType()->id);
  json.text("kindName", element.getElementType()->name);
  json.text("name", element.getName());
}

void writeSettings(JsonWriter& json, const PrioritySettings& settings) {
  json.key("settings");
  json.beginObject();
  json.integer("priority", settings.priority);
  if (const auto* reservoir = dynamic_cast<const PriorityReservoirSettings*>(&settings))
    json.truth("hydrologicalStateSystem", reservoir->getIsHydrologicalStateSystem());
  json.key("states");
  json.beginArray();
  for (const auto& [priority, serie] : settings.getPrioritySeries()) {
    json.breakLine();
    json.beginObject();
    json.integer("priority", priority);
    json.key("series");
    writeSerie(json, *serie);
    json.endObject();
  }
  json.endArray();
  json.endObject();
}

void writeCurve(JsonWriter& json, const std::vector<std::vector<double>>& curve) {
  json.key("areaVolumeCurve");
  json.beginArray();
  for (const auto& point : curve) {
    json.beginArray();
    for (const double value : point)
      json.number(value);
    json.endArray();
  }
  json.endArray();
}

void writeReservoir(JsonWriter& json, const ReservoirInfo& info) {
  json.key("reservoir");
  json.beginObject();
  json.number("initialVolume", info.initialVolume);
  json.number("minimumVolume", info.minimumVolume);
  json.number("maximumVolume", info.maximumVolume);
  json.truth("volumeFlag", info.volumeFlag);
  writeCurve(json, info.areaVolumeCurve);
  json.endObject();
}

void writeNode(JsonWriter& json, const Scenario& scenario, const Node& node) {
  writeIdentity(json, node);
  json.number("x", node.getX());
  json.number("y", node.getY());
  writeSeries(json, node);
  if (const auto settings = settingsOf(scenario, node))
    writeSettings(json, *settings);
  if (const auto* info = reservoirInfoOf(node))
    writeReservoir(json, *info);
  json.endObject();
}

void writeLink(JsonWriter& json, const Link& link) {
  writeIdentity(json, link);
  json.integer("upstream", idOf(link.upstream));
  json.integer("downstream", idOf(link.downstream));
  json.truth("bidirectional", link.getIsBidirectional());
  writeSeries(json, link);
  json.endObject();
}

void writeStates(JsonWriter& json, const HydrologicalStateConfiguration& states) {
  json.key("hydrologicalState");
  json.beginObject();
  json.integer("kind", states.getCurrentHydrologicalStateType().id);
  json.text("name", states.getCurrentHydrologicalStateType().name);
  json.key("boundaries");
  json.beginArray();
  for (const double boundary : states.getXValues())
    json.number(boundary);
  json.endArray();
  json.integer("states", states.getNumOfStates());
  json.endObject();
}

void writeScenario(JsonWriter& json, const Scenario& scenario) {
  json.breakLine();
  json.key("scenario");
  json.beginObject();
  json.integer("id", scenario.getId());
  json.text("name", scenario.getName());
  writeInterval(json, scenario.getInterval());
  json.text("periodicity", scenario.getInterval().getPeriodicity().name);
  json.endObject();
  json.breakLine();
  writeStates(json, statesOf(scenario));
  const Network network = networkOf(scenario);
  json.breakLine();
  json.key("nodes");
  json.beginArray();
  for (const auto& node : network.nodes)
    writeNode(json, scenario, *node);
  json.endArray();
  json.breakLine();
  json.key("links");
  json.beginArray();
  for (const auto& link : network.links)
    writeLink(json, *link);
  json.endArray();
}

} // namespace

void writeJson(FileWriter& out, const Imported& imported) {
  JsonWriter json(out);
  json.beginObject();
  json.text("format", "lagomare-scenario");
  json.integer("version", formatVersion);
  json.text("dialect", nameOf(imported.dialect));
  json.integer("status", imported.result.status);
  json.text("message", imported.result.message);
  if (imported.result.scenario)
    writeScenario(json, *imported.result.scenario);
  json.endObject();
  out.write("\n");
}

} // namespace LagomareTools
