#include "model/PriorityDemandSettings.h"

#include "model/SerieType.h"
#include "model/Unit.h"

PriorityDemandSettings::PriorityDemandSettings(unsigned numOfStates)
    : PrioritySettings(numOfStates, SerieType::WaterDemand, Unit::M3S) {}
