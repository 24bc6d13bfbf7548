#include "elements/common/Reservoirs.h"

#include "access/Fields.h"
#include "elements/common/Kinds.h"
#include "elements/common/SettingsOf.h"
#include "model/Calendar.h"
#include "model/NumericalUtils.h"

#include <utility>
#include <vector>

namespace Lagomare {

namespace {

constexpr double tolerance = 1e-6;

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

void setSystemFlag(Reservoir& reservoir, const Row& row, std::size_t column, Scenario& scenario) {
  auto& settings = settingsOf<PriorityReservoirSettings>(reservoir, scenario);
  settings.setIsHydrologicalStateSystem(unsignedAt(row, column) != 0);
}

void loadCurves(const QueryResult& rows, const ElementMap& elements, const CurveColumns& columns) {
  const auto pointOf = [&columns](const Row& row) {
    return std::vector{numberAt(row, columns.level), numberAt(row, columns.area), numberAt(row, columns.volume)};
  };
  for (const auto& entry : rows)
    if (const auto reservoir = findElement<Reservoir>(elements, entry.first)) {
      auto curve = readEach(rows, entry.first, pointOf);
      ReservoirInfo info = reservoir->getReservoirInfo();
      info.areaVolumeCurve = std::move(curve);
      reservoir->setReservoirInfo(std::move(info));
    }
}

void loadNetEvaporation(const QueryResult& rows, const ElementMap& elements, const Interval& interval, double scale) {
  for (const auto& entry : rows)
    if (const auto reservoir = findElement<Reservoir>(elements, entry.first)) {
      Serie& precipitation = serieOf(*reservoir, precipitationSeries);
      Serie& evaporation = serieOf(*reservoir, evaporationSeries);
      const auto profile = readEach(rows, entry.first, [scale](const Row& row) { return numberAt(row, 1) * scale; });
      layNetEvaporation(profile, precipitation, evaporation, interval);
    }
}

void fillTargets(const ElementMap& elements, const Interval& interval) {
  for (const auto& entry : elements) {
    Serie& target = serieOf(*entry.second, targetVolumeSeries);
    target.setInterval(interval);
    target.fill(1.0);
  }
}

} // namespace Lagomare
