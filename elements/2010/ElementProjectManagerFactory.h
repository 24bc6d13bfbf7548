#pragma once

#include "elements/common/ElementMap.h"
#include "lagomare_export.h"

#include <functional>
#include <map>
#include <memory>

class Scenario;

namespace Lagomare2010 {

class ElementProjectManager;

/// Makes the loader of a kind for one map of elements and the scenario that they go into.
class LAGOMARE_EXPORT ElementProjectManagerFactory {
public:
  /// The kinds that are served: 0, 2, 7 and 11.
  static const std::map<ElementType, std::function<std::shared_ptr<ElementProjectManager>(const Lagomare::ElementMap&,
                                                                                          std::shared_ptr<Scenario>)>>
      mapOfLambdas;

  ElementProjectManagerFactory() = delete;

  /// Throws std::invalid_argument "ElementProjectManagerFactory::make: invalid element type" for kinds other
  /// than 0, 2, 7 and 11.
  [[nodiscard]] static std::shared_ptr<ElementProjectManager>
  make(ElementType type, const Lagomare::ElementMap& elements, std::shared_ptr<Scenario> scenario);

  [[nodiscard]] static std::shared_ptr<ElementProjectManager> makeReservoir(const Lagomare::ElementMap& elements,
                                                                            std::shared_ptr<Scenario> scenario);
  [[nodiscard]] static std::shared_ptr<ElementProjectManager> makeDemand(const Lagomare::ElementMap& elements,
                                                                         std::shared_ptr<Scenario> scenario);
  [[nodiscard]] static std::shared_ptr<ElementProjectManager> makeJunction(const Lagomare::ElementMap& elements,
                                                                           std::shared_ptr<Scenario> scenario);
  [[nodiscard]] static std::shared_ptr<ElementProjectManager> makeLink(const Lagomare::ElementMap& elements,
                                                                       std::shared_ptr<Scenario> scenario);
};

} // namespace Lagomare2010
