#include "tools/export/GeoJsonExport.h"

#include "tools/export/JsonWriter.h"
#include "tools/export/ScenarioView.h"

#include <cmath>
#include <optional>
#include <string>

namespace LagomareTools {

namespace {

/// Seven decimals, some 1 cm on the ground: RFC 7946 advises against more.
double roundedDegrees(double degrees) { return std::round(degrees * 1e7) / 1e7; }

void writePosition(JsonWriter& json, const Position& position) {
  json.beginArray();
  json.number(roundedDegrees(position.first));
  json.number(roundedDegrees(position.second));
  json.endArray();
}

void writeGeometry(JsonWriter& json, const Line& line) {
  if (line.empty())
    return json.null();
  json.beginObject();
  json.text("type", line.size() == 1 ? "Point" : "LineString");
  json.key("coordinates");
  if (line.size() == 1) {
    writePosition(json, line.front());
  } else {
    json.beginArray();
    for (const Position& position : line)
      writePosition(json, position);
    json.endArray();
  }
  json.endObject();
}

/// West, south, east, north; nothing where no node has a position.
void writeBox(JsonWriter& json, const Network& network) {
  Box box;
  for (const auto& node : network.nodes)
    box.include(lineOf(*node));
  if (box.isEmpty())
    return;
  json.key("bbox");
  json.beginArray();
  for (const double degrees : {box.west, box.south, box.east, box.north})
    json.number(roundedDegrees(degrees));
  json.endArray();
}

void writeIdentity(JsonWriter& json, const Element& element) {
  json.integer("id", element.bdId);
  json.integer("kind", element.getElementType()->id);
  json.text("kindName", element.getElementType()->name);
  json.text("name", element.getName());
}

/// Properties stand only where they apply.
void writeKnown(JsonWriter& json, const char* name, std::optional<double> value) {
  if (value)
    json.real(name, value);
}

void writeNodeProperties(JsonWriter& json, const Scenario& scenario, const Node& node) {
  json.beginObject();
  writeIdentity(json, node);
  if (const auto settings = settingsOf(scenario, node))
    json.integer("priority", settings->priority);
  if (const auto* info = reservoirInfoOf(node)) {
    json.real("initialVolume", info->initialVolume);
    json.real("minimumVolume", info->minimumVolume);
    json.real("maximumVolume", info->maximumVolume);
  }
  writeKnown(json, "meanNaturalFlow", meanOf(node, SerieType::NaturalAffluentFlow));
  writeKnown(json, "meanDemand", meanOf(node, SerieType::WaterDemand));
  json.endObject();
}

void writeLinkProperties(JsonWriter& json, const Link& link) {
  json.beginObject();
  writeIdentity(json, link);
  json.integer("upstream", idOf(link.upstream));
  json.integer("downstream", idOf(link.downstream));
  writeKnown(json, "flowLimit", constantOf(link, SerieType::LinkLimitSerie));
  writeKnown(json, "lossPercent", constantOf(link, SerieType::LinkLoss));
  json.truth("bidirectional", link.getIsBidirectional());
  json.endObject();
}

/// Where a feature lacks an id of its own, programs take the property's, which a node and a link may share, and lose
/// one of the two.
template <typename WriteProperties>
void writeFeature(JsonWriter& json, const std::string& id, const Line& line, WriteProperties writeProperties) {
  json.breakLine();
  json.beginObject();
  json.text("type", "Feature");
  json.text("id", id);
  json.key("geometry");
  writeGeometry(json, line);
  json.key("properties");
  writeProperties();
  json.endObject();
}

} // namespace

void writeGeoJson(FileWriter& out, const Scenario& scenario) {
  const Network network = networkOf(scenario);
  JsonWriter json(out);
  json.beginObject();
  json.text("type", "FeatureCollection");
  writeBox(json, network);
  json.key("features");
  json.beginArray();
  for (const auto& node : network.nodes)
    writeFeature(json, "node-" + std::to_string(node->bdId), lineOf(*node),
                 [&] { writeNodeProperties(json, scenario, *node); });
  for (const auto& link : network.links)
    writeFeature(json, "link-" + std::to_string(link->bdId), lineOf(*link), [&] { writeLinkProperties(json, *link); });
  json.endArray();
  json.endObject();
  out.write("\n");
}

} // namespace LagomareTools
