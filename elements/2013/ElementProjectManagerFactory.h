#pragma once

#include "elements/common/ElementMap.h"
#include "lagomare_export.h"
#include "model/ElementType.h"

#include <functional>
#include <map>
#include <memory>

class Scenario;

namespace Lagomare2013 {

using Lagomare::ElementMap;

class ElementProjectManager;

/// Makes the loader of a kind for one map of elements and the scenario that they go into.
class LAGOMARE_EXPORT ElementProjectManagerFactory {
public:
  /// The kinds that are served: 0, 2, 7 and 11.
  static const std::map<
      ElementType, std::function<std::shared_ptr<ElementProjectManager>(const ElementMap&, std::shared_ptr<Scenario>)>>
      mapOfLambdas;

  ElementProjectManagerFactory() = delete;

  /// Throws std::invalid_argument "ElementProjectManagerFactory::make: invalid element type" for kinds other
  /// than 0, 2, 7 and 11.
  [[nodiscard]] static std::shared_ptr<ElementProjectManager> make(ElementType type, const ElementMap& elements,
                                                                   std::shared_ptr<Scenario> scenario);

  [[nodiscard]] static std::shared_ptr<ElementProjectManager> makeReservoir(const ElementMap& elements,
                                                                            std::shared_ptr<Scenario> scenario);
  [[nodiscard]] static std::shared_ptr<ElementProjectManager> makeDemand(const ElementMap& elements,
                                                                         std::shared_ptr<Scenario> scenario);
  [[nodiscard]] static std::shared_ptr<ElementProjectManager> makeJunction(const ElementMap& elements,
                                                                           std::shared_ptr<Scenario> scenario);
  [[nodiscard]] static std::shared_ptr<ElementProjectManager> makeLink(const ElementMap& elements,
                                                                       std::shared_ptr<Scenario> scenario);
};

} // namespace Lagomare2013
