#pragma once

#include "elements/2010/ElementProjectManager.h"
#include "elements/2010/NodeProjectManager.h"
#include "lagomare_export.h"

#include <string>

namespace Lagomare2010 {

/// Loads reservoirs: volumes in hm³, areas in km² and levels in m as the project holds them.
class LAGOMARE_EXPORT ReservoirProjectManager : public NodeProjectManager {
public:
  static const std::string reservoirVolumesTable;         ///< "Res"
  static const std::string reservoirIsHydrologicalSystem; ///< "ResSubsist"
  static const std::string reservoirCavTable;             ///< "ResAVN"
  static const std::string reservoirEvapTable;            ///< "ResEvap"
  static const std::string reservoirTagetVolumeTable;     ///< "ResVmetaEH"
  static const std::string reservoirPriorityTable;        ///< "ResPriorEH"

  using NodeProjectManager::NodeProjectManager;

  void makeLambdas() override;
  /// "ReservoirProjectManager::validElement(): invalid element type"
  void validElement() override;
  [[nodiscard]] unsigned getElementType() override;

  /// The volumes, as read. Without rows it does nothing at all.
  static void loadVolumes(ElementProjectManager* base, TeluCoreProgressBar& bar);
  /// Which reservoirs count towards the system's state. Without rows it does nothing at all.
  static void loadIsHydrologicalSystem(ElementProjectManager* base, TeluCoreProgressBar& bar);
  /// The curves of level, area and volume.
  static void loadCavInfo(ElementProjectManager* base, TeluCoreProgressBar& bar);
  /// Evaporation and precipitation, in mm, from a monthly profile of net evaporation in m.
  static void loadEtpPrec(ElementProjectManager* base, TeluCoreProgressBar& bar);
  /// The target volumes of state 1, fractions; 1.0 where the project has none.
  static void loadTargetVolume(ElementProjectManager* base, TeluCoreProgressBar& bar);
  /// The priority in state 1, truncated.
  static void loadPriority(ElementProjectManager* base, TeluCoreProgressBar& bar);
  /// The priority in each state, truncated, where the scenario's states are of the kind "Padrão".
  static void loadPriorityHydrologicalState(ElementProjectManager* base, TeluCoreProgressBar& bar);
  /// The target volumes of each state, whatever the kind of states.
  static void loadTargetVolumeHydrologicalState(ElementProjectManager* base, TeluCoreProgressBar& bar);
};

} // namespace Lagomare2010
