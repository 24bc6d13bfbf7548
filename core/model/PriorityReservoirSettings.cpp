#include "model/PriorityReservoirSettings.h"

PriorityReservoirSettings::PriorityReservoirSettings(unsigned numOfStates)
    : PrioritySettings(numOfStates, SerieType::TargetVolume, Unit::Dimensionless) {}
