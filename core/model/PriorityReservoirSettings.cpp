#include "model/PriorityReservoirSettings.h"

#include "model/SerieType.h"
#include "model/Unit.h"

PriorityReservoirSettings::PriorityReservoirSettings(unsigned numOfStates)
    : PrioritySettings(numOfStates, SerieType::TargetVolume, Unit::Dimensionless) {}
