#include "model/DemandSeriesInput.h"

const std::vector<std::pair<SerieType, Unit>> DemandSeriesInput::seriesTable{
    {SerieType::WaterDemand, Unit::M3S}, {SerieType::NaturalAffluentFlow, Unit::M3S}};
