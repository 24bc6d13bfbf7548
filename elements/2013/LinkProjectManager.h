#pragma once

#include "elements/2013/ElementProjectManager.h"
#include "lagomare_export.h"
#include "model/Element.h"

#include <memory>
#include <string>

namespace Lagomare2013 {

/// Loads links. The nodes must be in the scenario: links are joined to what they find there.
class LAGOMARE_EXPORT LinkProjectManager : public ElementProjectManager {
public:
  static const std::string linkGeneralInfoTable;  ///< "Tk_Lnk_FEA"
  static const std::string linkGeneralInfoFields; ///< "UID, Nome, NoIni, NoFim, Coef, Cmin"
  static const std::string linkTrafficLimitTable; ///< "LgmLnkCmaxSC"
  static const std::string linkBdIdField1;        ///< "UID"
  static const std::string linkBdIdField2;        ///< "NumLnk"

  using ElementProjectManager::ElementProjectManager;

  void makeLambdas() override;
  /// "LinkProjectManager::validElement(): invalid element type"
  void validElement() override;
  void addElementInScenery(std::shared_ptr<Element> element) override;

  // Each step does nothing at all where its query has no rows, and throws std::invalid_argument "Invalid serie type!"
  // where a link lacks the series. An end that the scenario has not is std::runtime_error
  // "LinkProjectManager::loadGeneralInfo: invalid upStream" or the same with "downStream".

  /// The flow limits of state 1, m³/s.
  static void loadTrafficLimit(ElementProjectManager* base, TeluCoreProgressBar& bar);
  /// General information, the two ends and the losses, in percent.
  static void loadGeneralInfo(ElementProjectManager* base, TeluCoreProgressBar& bar);
};

} // namespace Lagomare2013
