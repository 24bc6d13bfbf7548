#include "tools/export/CsvExport.h"

#include "tools/export/NumberText.h"
#include "tools/export/ScenarioView.h"
#include "tools/system/Text.h"

#include <cmath>

namespace LagomareTools {

namespace {

constexpr std::string_view endOfRecord = "\r\n";

std::string field(const std::string& text) {
  std::string plain = plainText(text);
  if (plain.find_first_of(",\"\r\n") == std::string::npos)
    return plain;
  std::string quoted = "\"";
  for (const char c : plain)
    quoted.append(c == '"' ? 2 : 1, c);
  return quoted + '"';
}

std::string field(double value) { return std::isfinite(value) ? std::string(NumberText(value).view()) : ""; }

std::string field(std::optional<double> value) { return value ? field(*value) : ""; }

std::string field(std::optional<std::uint32_t> value) { return value ? std::to_string(*value) : ""; }

template <typename... Fields>
void writeRecord(FileWriter& out, const std::string& first, const Fields&... fields) {
  out.write(first);
  ((out.write(","), out.write(fields)), ...);
  out.write(endOfRecord);
}

std::string identity(const Element& element) {
  const auto& kind = *element.getElementType();
  return std::to_string(element.bdId) + ',' + std::to_string(kind.id) + ',' + field(kind.name) + ',' +
         field(element.getName());
}

void writeElements(FileWriter& out, const Scenario& scenario) {
  writeRecord(out, "id,kind,kind_name,name,longitude,latitude,priority,initial_volume,minimum_volume,maximum_volume");
  for (const auto& node : networkOf(scenario).nodes) {
    const auto settings = settingsOf(scenario, *node);
    const auto* const info = reservoirInfoOf(*node);
    const auto volume = [info](double ReservoirInfo::*member) { return info == nullptr ? "" : field(info->*member); };
    writeRecord(out, identity(*node), field(node->getX()), field(node->getY()),
                settings ? std::to_string(settings->priority) : "", volume(&ReservoirInfo::initialVolume),
                volume(&ReservoirInfo::minimumVolume), volume(&ReservoirInfo::maximumVolume));
  }
}

void writeLinks(FileWriter& out, const Scenario& scenario) {
  writeRecord(out, "id,kind,kind_name,name,upstream_id,downstream_id,bidirectional,flow_limit,loss_percent");
  for (const auto& link : networkOf(scenario).links)
    writeRecord(out, identity(*link), field(idOf(link->upstream)), field(idOf(link->downstream)),
                std::string(link->getIsBidirectional() ? "true" : "false"),
                field(constantOf(*link, SerieType::LinkLimitSerie)), field(constantOf(*link, SerieType::LinkLoss)));
}

/// `state` is empty for a base series.
void writeSerie(FileWriter& out, const Element& element, const Serie& serie, const std::string& state) {
  const std::string same = std::to_string(element.bdId) + ',' + std::to_string(element.getElementType()->id) + ',' +
                           field(element.getName()) + ',' + std::to_string(serie.getSerieType().id) + ',' +
                           field(serie.getSerieType().name) + ',' + field(serie.getUnit().name) + ',' + state;
  forEachStep(serie, [&](const Date& date, double value) { writeRecord(out, same, isoDate(date), field(value)); });
}

void writeBaseSeries(FileWriter& out, const Element& element) {
  for (const auto& serie : element.getVectorOfSeries(0))
    writeSerie(out, element, *serie, "");
}

void writeSeries(FileWriter& out, const Scenario& scenario) {
  writeRecord(out, "element_id,element_kind,element_name,series_kind,series_name,unit,state,date,value");
  const Network network = networkOf(scenario);
  for (const auto& node : network.nodes) {
    writeBaseSeries(out, *node);
    const auto settings = settingsOf(scenario, *node);
    unsigned state = 0;
    if (settings)
      for (const auto& entry : settings->getPrioritySeries())
        writeSerie(out, *node, *entry.second, std::to_string(++state));
  }
  for (const auto& link : network.links)
    writeBaseSeries(out, *link);
}

void writeCurves(FileWriter& out, const Scenario& scenario) {
  writeRecord(out, "reservoir_id,point,level,area,volume");
  for (const auto& node : networkOf(scenario).nodes)
    if (const auto* const info = reservoirInfoOf(*node)) {
      unsigned point = 0;
      for (const auto& row : info->areaVolumeCurve)
        writeRecord(out, std::to_string(node->bdId), std::to_string(++point), field(row.at(0)), field(row.at(1)),
                    field(row.at(2)));
    }
}

} // namespace

const std::array<CsvTable, 4> csvTables{{{"elements.csv", writeElements},
                                         {"links.csv", writeLinks},
                                         {"series.csv", writeSeries},
                                         {"curves.csv", writeCurves}}};

} // namespace LagomareTools
