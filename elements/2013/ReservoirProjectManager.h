#pragma once

#include "elements/2013/ElementProjectManager.h"
#include "elements/2013/NodeProjectManager.h"
#include "lagomare_export.h"

#include <string>

namespace Lagomare2013 {

/// Loads reservoirs: volumes in hm³, areas in km² and levels in m as the project holds them.
class LAGOMARE_EXPORT ReservoirProjectManager : public NodeProjectManager {
public:
  static const std::string reservoirGeneralInfoTable; ///< "Tk_Res_FEA"
  /// "NumPonto, Nome, Coord_X, Coord_Y, VolMax, VolMin, VolIni, Subsist"
  static const std::string reservoirGeneralInfoFields;
  static const std::string reservoirCavTable;         ///< "LgmResCAV"
  static const std::string reservoirEvapTable;        ///< "LgmResEvap"
  static const std::string reservoirTagetVolumeTable; ///< "LgmResVmetaSC"
  static const std::string reservoirPriorityTable;    ///< "LgmResPrior"

  using NodeProjectManager::NodeProjectManager;

  void makeLambdas() override;
  /// "ReservoirProjectManager::validElement(): invalid element type"
  void validElement() override;

  /// Volumes, general information and the system flag, then natural flows.
  static void loadGeneralInfo(ElementProjectManager* base, TeluCoreProgressBar& bar);
  /// The curves of level, area and volume.
  static void loadCavInfo(ElementProjectManager* base, TeluCoreProgressBar& bar);
  /// Evaporation and precipitation, in mm, from a monthly profile of net evaporation in mm.
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

} // namespace Lagomare2013
