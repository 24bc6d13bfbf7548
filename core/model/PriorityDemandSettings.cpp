#include "model/PriorityDemandSettings.h"

PriorityDemandSettings::PriorityDemandSettings(unsigned numOfStates)
    : PrioritySettings(numOfStates, SerieType::WaterDemand, Unit::M3S) {}
