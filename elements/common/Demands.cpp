#include "elements/common/Demands.h"

#include "elements/common/Elements.h"
#include "model/Calendar.h"
#include "model/EnumSerieTypeFactory.h"
#include "model/EnumUnitFactoryByType.h"
#include "model/NumericalUtils.h"

namespace Lagomare {

namespace {

constexpr double drainThreshold = 1000.0; // m³/s
constexpr double tolerance = 1e-6;

} // namespace

bool isDrain(const Demand& demand, const Interval& interval) {
  const Serie& serie = serieOf(demand, SerieType::WaterDemand);
  for (Date date = interval.getBegin(); date <= interval.getEnd(); date += Calendar::incInterval(date, interval))
    if (0.0 > NumericalUtils::subtractDoubles(serie.getValue(date), drainThreshold, tolerance))
      return false;
  return true;
}

std::shared_ptr<DrainDemand> makeDrain(const Demand& demand) {
  auto drain = std::make_shared<DrainDemand>();
  auto series = std::make_shared<DemandSeriesInput>();
  for (const auto& [type, unit] : DemandSeriesInput::seriesTable)
    series->set(type, std::make_shared<Serie>(Interval(), EnumSerieTypeFactory::makeSerieType(type),
                                              EnumUnitFactoryByType::makeUnit(unit)));
  drain->setSeriesInput(series);
  drain->setX(demand.getX());
  drain->setY(demand.getY());
  drain->bdId = demand.bdId;
  drain->setName(demand.getName());
  return drain;
}

} // namespace Lagomare
