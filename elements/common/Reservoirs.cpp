#include "elements/common/Reservoirs.h"

#include "access/Fields.h"
#include "elements/common/SettingsOf.h"
#include "model/Calendar.h"
#include "model/NumericalUtils.h"

namespace Lagomare {

namespace {

constexpr double tolerance = 1e-6;

std::vector<std::vector<double>> readCurve(const std::vector<Row>& rows, const CurveColumns& columns) {
  std::vector<std::vector<double>> curve;
  curve.reserve(rows.size());
  for (const Row& row : rows)
    curve.push_back({numberAt(row, columns.level), numberAt(row, columns.area), numberAt(row, columns.volume)});
  return curve;
}

std::vector<double> readProfile(const std::vector<Row>& rows, double scale) {
  std::vector<double> profile;
  profile.reserve(rows.size());
  for (const Row& row : rows)
    profile.push_back(numberAt(row, 1) * scale);
  return profile;
}

void layNetEvaporation(const std::vector<double>& profile, Serie& precipitation, Serie& evaporation,
                       const Interval& interval) {
  for (Date date = interval.getBegin(); date <= interval.getEnd(); date += Calendar::incInterval(date, interval)) {
    const std::size_t monthIndex0 = date.getMonth() - 1U;
    if (monthIndex0 >= profile.size())
      continue;
    const double net = profile[monthIndex0];
    const bool evaporates = NumericalUtils::subtractDoubles(net, 0.0, tolerance) >= 0.0;
    evaporation.setValue(date, evaporates ? net : 0.0);
    precipitation.setValue(date, evaporates ? 0.0 : -net);
  }
  precipitation.setInterval(interval);
  evaporation.setInterval(interval);
}

} // namespace

void setVolumes(Reservoir& reservoir, const Row& row, const VolumeColumns& columns) {
  ReservoirInfo info = reservoir.getReservoirInfo();
  info.initialVolume = numberAt(row, columns.initial);
  info.minimumVolume = numberAt(row, columns.minimum);
  info.maximumVolume = numberAt(row, columns.maximum);
  info.volumeFlag = false;
  reservoir.setReservoirInfo(std::move(info));
}

void setSystemFlag(const Reservoir& reservoir, const Row& row, std::size_t column, const Scenario& scenario) {
  auto& settings = settingsOf<PriorityReservoirSettings>(reservoir, scenario);
  settings.setIsHydrologicalStateSystem(unsignedAt(row, column) != 0);
}

void loadCurves(const QueryResult& rows, const ElementMap& elements, const CurveColumns& columns) {
  for (const auto& [id, rowsOfId] : rows)
    if (const auto reservoir = findElement<Reservoir>(elements, id)) {
      auto curve = readCurve(rowsOfId, columns);
      ReservoirInfo info = reservoir->getReservoirInfo();
      info.areaVolumeCurve = std::move(curve);
      reservoir->setReservoirInfo(std::move(info));
    }
}

void loadNetEvaporation(const QueryResult& rows, const ElementMap& elements, const Interval& interval, double scale) {
  for (const auto& [id, rowsOfId] : rows)
    if (const auto reservoir = findElement<Reservoir>(elements, id)) {
      Serie& precipitation = serieOf(*reservoir, SerieType::Precipitation);
      Serie& evaporation = serieOf(*reservoir, SerieType::Evapotranspiration);
      layNetEvaporation(readProfile(rowsOfId, scale), precipitation, evaporation, interval);
    }
}

void fillTargets(const ElementMap& elements, const Interval& interval) {
  for (const auto& entry : elements) {
    Serie& target = serieOf(*entry.second, SerieType::TargetVolume);
    target.setInterval(interval);
    target.fill(1.0);
  }
}

} // namespace Lagomare
