#include "model/PrioritySettings.h"

#include "model/EnumSerieTypeFactory.h"
#include "model/EnumUnitFactoryByType.h"

#include <stdexcept>

PrioritySettings::PrioritySettings(unsigned numOfStates, SerieType type, Unit unit) {
  const Serie empty(Interval(), EnumSerieTypeFactory::makeSerieType(type), EnumUnitFactoryByType::makeUnit(unit));
  for (unsigned state = 1; state <= numOfStates; ++state)
    prioritySeries_.emplace_back(0U, std::make_shared<Serie>(empty));
}

void PrioritySettings::setPriorityOfPairPrioritySerie(unsigned priorityOfState, unsigned index) {
  if (index >= prioritySeries_.size())
    throw std::out_of_range("PrioritySettings::setPriorityOfPairPrioritySerie: invalid index");
  prioritySeries_[index].first = priorityOfState;
}
