#pragma once

#include "elements/common/ElementMap.h"
#include "lagomare_export.h"
#include "model/Element.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

class Scenario;
class TeluCoreProgressBar;

namespace Lagomare2010 {

using Lagomare::ElementMap;

/// Fills the elements of one kind from the database, in steps. Used for one load and dropped.
///
/// Its map of elements is its own, the elements in it are shared with whoever made them. A step is a static
/// function that is given the loader; it ends with one step of progress, and throws
/// TeluCoreProgressBar::ProgressCancelException when the host asks to stop. What was set before an error
/// stays set.
class LAGOMARE_EXPORT ElementProjectManager {
public:
  static const std::string generalInfoTable; ///< "Pontos"
  static const std::string whereEH1;         ///< "where EstHidr = 1"
  static const std::string natFlowTable;     ///< "Vazao"

  ElementProjectManager(const ElementMap& elementsById, std::shared_ptr<Scenario> scenarioToFill);

  /// Registers the kind's steps in the order in which they run.
  virtual void makeLambdas() = 0;
  /// Throws std::invalid_argument with the kind's text where an element is of another kind.
  virtual void validElement() = 0;
  virtual void addElementInScenery(std::shared_ptr<Element> element) = 0;
  /// The kind's code in the column "Tipo" of "Pontos"; 0 for links, which do not stand there.
  [[nodiscard]] virtual unsigned getElementType() = 0;
  virtual ~ElementProjectManager();
  /// Checks the elements, then runs the steps.
  virtual void load(TeluCoreProgressBar& bar);

  /// The number of steps; registers them if that has not been done.
  [[nodiscard]] long numOfLambdas();

  /// Sets the name (column 1) and the database id (column 0), and puts the element into the scenario.
  void loadElementInfo(std::shared_ptr<Element> element, const std::vector<std::string>& row);

  /// Fills the natural-flow series of all elements of this loader, in m³/s.
  void loadNatFlowSerie();

protected:
  ElementMap elements;
  std::shared_ptr<Scenario> scenario;
  std::vector<std::function<void(ElementProjectManager*, TeluCoreProgressBar&)>> steps;
};

} // namespace Lagomare2010
