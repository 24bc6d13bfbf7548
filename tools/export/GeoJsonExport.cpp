#include "tools/export/GeoJsonExport.h"

#include "tools/export/JsonWriter.h"
#include "tools/export/ScenarioView.h"

#include <cmath>

namespace LagomareTools {

namespace {

using Position = std::pair<double, double>; ///< longitude, latitude

std::optional<Position> positionOf(const Node* node) {
  if (node == nullptr || !std::isfinite(node->getX()) || !std::isfinite(node->getY()))
    return std::nullopt;
  return Position(node->getX(), node->getY());
}

void writePosition(JsonWriter& json, const Position& position) {
  json.beginArray();
  json.number(position.first);
  json.number(position.second);
  json.endArray();
}

void beginGeometry(JsonWriter& json, const char* type) {
  json.beginObject();
  json.text("type", type);
  json.key("coordinates");
}

void writePoint(JsonWriter& json, const Node& node) {
  const auto position = positionOf(&node);
  if (!position)
    return json.null();
  beginGeometry(json, "Point");
  writePosition(json, *position);
  json.endObject();
}

void writeLine(JsonWriter& json, const Link& link) {
  const auto begin = positionOf(link.upstream.lock().get());
  const auto end = positionOf(link.downstream.lock().get());
  if (!begin || !end)
    return json.null();
  beginGeometry(json, "LineString");
  json.beginArray();
  writePosition(json, *begin);
  writePosition(json, *end);
  json.endArray();
  json.endObject();
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
    json.number(name, value);
}

void writeNodeProperties(JsonWriter& json, const Scenario& scenario, const Node& node) {
  json.beginObject();
  writeIdentity(json, node);
  if (const auto settings = settingsOf(scenario, node))
    json.integer("priority", settings->priority);
  if (const auto* info = reservoirInfoOf(node)) {
    json.number("initialVolume", info->initialVolume);
    json.number("minimumVolume", info->minimumVolume);
    json.number("maximumVolume", info->maximumVolume);
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

/// The number is the feature's own id. Where it lacks one, programs take the property's, which a node and a link may
/// share, and lose one of the two.
template <typename WriteGeometry, typename WriteProperties>
void writeFeature(JsonWriter& json, unsigned number, WriteGeometry writeGeometry, WriteProperties writeProperties) {
  json.breakLine();
  json.beginObject();
  json.text("type", "Feature");
  json.integer("id", number);
  json.key("geometry");
  writeGeometry();
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
  json.key("features");
  json.beginArray();
  unsigned number = 0;
  for (const auto& node : network.nodes)
    writeFeature(
        json, ++number, [&] { writePoint(json, *node); }, [&] { writeNodeProperties(json, scenario, *node); });
  for (const auto& link : network.links)
    writeFeature(
        json, ++number, [&] { writeLine(json, *link); }, [&] { writeLinkProperties(json, *link); });
  json.endArray();
  json.endObject();
  out.write("\n");
}

} // namespace LagomareTools
