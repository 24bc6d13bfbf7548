#pragma once

#include "lagomare_export.h"
#include "loader/SceneryProjectManagerRet.h"
#include "model/ElementType.h"
#include "model/Interval.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Lagomare2010 {

/// Builds a scenario from the project behind the query channel, which must exist.
class LAGOMARE_EXPORT SceneryProjectManager {
public:
  static const std::string sceneryGeneralInfoTable; ///< "DefGerais"
  static const std::string sceneryXValuesTable;     ///< "FrontEH"
  /// The kinds in the order in which they are loaded: reservoir, demand, junction, link. Links come last:
  /// they look their nodes up in the scenario.
  static const std::vector<ElementType> vecOfElementType;

  /// The whole import. The status tells a cancelled, a refused and an invalid project from a loaded one; what
  /// cannot be read is an exception.
  [[nodiscard]] static SceneryProjectManagerRet load(std::function<bool(long, long)> progress);

  /// The period in months, from the first of the general-settings rows.
  [[nodiscard]] static Interval loadInterval(const std::vector<std::vector<std::string>>& rows);
  [[nodiscard]] static std::shared_ptr<Scenario> makeSceneryInstance(const Interval& interval);
  /// Reads the boundaries between the hydrological states.
  static void loadHydrologicalState(std::shared_ptr<Scenario> scenario);
  /// False where the host asked to stop.
  [[nodiscard]] static bool loadElements(std::shared_ptr<Scenario> scenario, std::function<bool(long, long)> progress);
};

} // namespace Lagomare2010
