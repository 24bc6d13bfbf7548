#pragma once

#include "elements/2010/ElementProjectManager.h"
#include "elements/2010/NodeProjectManager.h"
#include "lagomare_export.h"

#include <memory>
#include <string>

class Demand;

namespace Lagomare2010 {

/// Loads demands and turns those that stand for drains into drains. Values in m³/s.
class LAGOMARE_EXPORT DemandProjectManager : public NodeProjectManager {
public:
  static const std::string demandDemandTable;   ///< "DemEH"
  static const std::string demandPriorityTable; ///< "DemPriorEH"

  using NodeProjectManager::NodeProjectManager;

  void makeLambdas() override;
  /// "DemandProjectManager::validElement(): invalid element type"
  void validElement() override;
  [[nodiscard]] unsigned getElementType() override;

  /// The demands of state 1; then drains take the place of the demands that stand for them.
  static void loadDemandSerie(ElementProjectManager* base, TeluCoreProgressBar& bar);
  /// The priority in state 1, truncated.
  static void loadPriority(ElementProjectManager* base, TeluCoreProgressBar& bar);
  /// The priority in each state, truncated, where the scenario's states are of the kind "Padrão".
  static void loadPriorityHydrologicalState(ElementProjectManager* base, TeluCoreProgressBar& bar);
  /// The demands of each state, whatever the kind of states.
  static void loadWaterDemandHydrologicalState(ElementProjectManager* base, TeluCoreProgressBar& bar);

  /// At least 1000 m³/s, less a tolerance of 1e-6, at every date of the scenario's interval. Throws
  /// std::invalid_argument "Invalid serie type!" where the demand has no demand series.
  [[nodiscard]] bool isDrainDemand(std::shared_ptr<Demand> demand);
  /// Puts a drain into the loader's map under the id.
  void transformToDrainDemand(unsigned id, std::shared_ptr<Demand> demand);
};

} // namespace Lagomare2010
