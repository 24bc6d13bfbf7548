#pragma once

#include "lagomare_export.h"
#include "model/ElementType.h"
#include "model/Scenario.h"

namespace Lagomare {

/// Refuses a project whose series would hold more than 2^30 values (8 GiB) in all: a damaged duration, or damaged ids,
/// would else take the machine's memory before anybody sees it. Each series counts as if all its values were written
/// out, and as 32 values at least, for what it takes besides.
class LAGOMARE_EXPORT SizeGuard {
public:
  explicit SizeGuard(Scenario& scenario);

  /// Counts so many further elements of a kind, before they are made. Throws std::length_error
  /// "SceneryProjectManager::loadElements: N elements with S hydrological states are too many for so long a period"
  /// where the scenario would become too large.
  void add(ElementType kind, std::size_t elements);

private:
  std::size_t valuesPerSerie_;
  std::size_t states_;
  std::size_t elements_ = 0;
  std::size_t valuesLeft_ = std::size_t{1} << 30U;
};

} // namespace Lagomare
