#pragma once

#include "model/Serie.h"
#include "model/SerieType.h"
#include "model/Settings.h"
#include "model/Unit.h"
#include "telu_qt_export.h"

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

/// The order in which an element is served, in general and in each hydrological state.
class TELU_QT_EXPORT PrioritySettings : public Settings {
public:
  using PairPrioritySerie = std::pair<std::uint32_t, std::shared_ptr<Serie>>;

  std::int32_t priority = 0;

  /// One entry per hydrological state in state order: entry 0 is state 1. The series are shared.
  [[nodiscard]] const std::vector<PairPrioritySerie>& getPrioritySeries() const { return prioritySeries_; }
  /// Throws std::out_of_range
  /// "PrioritySettings::setPriorityOfPairPrioritySerie: invalid index" for an entry that does not exist.
  void setPriorityOfPairPrioritySerie(unsigned priorityOfState, unsigned index);

protected:
  /// One entry per state, each with priority 0 and a series of its own without an interval.
  PrioritySettings(unsigned numOfStates, SerieType type, Unit unit);

private:
  std::vector<PairPrioritySerie> prioritySeries_;
};
