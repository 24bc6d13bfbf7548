#include "model/ElementFactory.h"

#include "model/Demand.h"
#include "model/DemandSeriesInput.h"
#include "model/DrainDemand.h"
#include "model/EnumElementTypeFactory.h"
#include "model/EnumSerieTypeFactory.h"
#include "model/EnumUnitFactoryByType.h"
#include "model/Junction.h"
#include "model/Link.h"
#include "model/Reservoir.h"
#include "model/Serie.h"
#include "model/SerieType.h"
#include "model/Unit.h"

#include <stdexcept>
#include <utility>
#include <vector>

namespace {

using SeriesTable = std::vector<std::pair<SerieType, Unit>>;

const SeriesTable reservoirSeries{{SerieType::Precipitation, Unit::MM},
                                  {SerieType::Evapotranspiration, Unit::MM},
                                  {SerieType::NaturalAffluentFlow, Unit::M3S},
                                  {SerieType::TargetVolume, Unit::Dimensionless}};
const SeriesTable junctionSeries{{SerieType::NaturalAffluentFlow, Unit::M3S}};
const SeriesTable linkSeries{{SerieType::LinkLoss, Unit::Perc}, {SerieType::LinkLimitSerie, Unit::M3S}};

std::shared_ptr<Element> prepare(std::shared_ptr<Element> element, const SeriesTable& table) {
  for (const auto& [type, unit] : table)
    element->getSeriesInput()->set(type, std::make_shared<Serie>(Interval(), EnumSerieTypeFactory::makeSerieType(type),
                                                                 EnumUnitFactoryByType::makeUnit(unit)));
  return element;
}

} // namespace

std::shared_ptr<Element> ElementFactory::make(ElementType type) {
  switch (type) {
  case ElementType::Reservoir:
    return prepare(std::make_shared<Reservoir>(), reservoirSeries);
  case ElementType::HumanDemand:
  case ElementType::AnimalDemand:
  case ElementType::IndustrialDemand:
  case ElementType::AgricultureDemand:
    return prepare(std::make_shared<Demand>(EnumElementTypeFactory::makeElementType(type)),
                   DemandSeriesInput::seriesTable);
  case ElementType::DrainDemand:
    return prepare(std::make_shared<DrainDemand>(), DemandSeriesInput::seriesTable);
  case ElementType::Junction:
    return prepare(std::make_shared<Junction>(), junctionSeries);
  case ElementType::Basin:
    return std::make_shared<Node>(BasinType(), Point2D());
  case ElementType::ArtificialLink:
  case ElementType::NaturalLink:
    return prepare(std::make_shared<Link>(EnumElementTypeFactory::makeElementType(type)), linkSeries);
  case ElementType::Demand:
  case ElementType::Link:
    break;
  }
  throw std::invalid_argument("ElementFactory::make: invalid element type");
}
