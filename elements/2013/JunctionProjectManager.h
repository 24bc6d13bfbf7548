#pragma once

#include "elements/2013/ElementProjectManager.h"
#include "elements/2013/NodeProjectManager.h"
#include "lagomare_export.h"

#include <string>

namespace Lagomare2013 {

/// Loads junctions: general information and natural flows.
class LAGOMARE_EXPORT JunctionProjectManager : public NodeProjectManager {
public:
  static const std::string junctionGeneralInfoTable;  ///< "Tk_Pas_FEA"
  static const std::string junctionGeneralInfoFields; ///< "NumPonto, Nome, Coord_X, Coord_Y"

  using NodeProjectManager::NodeProjectManager;

  void makeLambdas() override;
  /// "JunctionProjectManager::validElement(): invalid element type"
  void validElement() override;

  /// General information, then natural flows. Without rows it does nothing at all.
  static void loadGeneralInfo(ElementProjectManager* base, TeluCoreProgressBar& bar);
};

} // namespace Lagomare2013
