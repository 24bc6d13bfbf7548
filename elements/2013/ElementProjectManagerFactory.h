#pragma once

#include "elements/common/Elements.h"
#include "lagomare_export.h"

#include <functional>
#include <map>
#include <memory>

class Scenario;

namespace Lagomare2013 {

class ElementProjectManager;

/// Makes the loader of a kind for one map of elements and the scenario that they go into.
class LAGOMARE_EXPORT ElementProjectManagerFactory {
public:
  using Elements = std::map<unsigned, std::shared_ptr<Element>>;

  /// Throws std::invalid_argument "ElementProjectManagerFactory::make: invalid element type" for kinds other
  /// than 0, 2, 7 and 11.
  [[nodiscard]] static std::shared_ptr<ElementProjectManager> make(ElementType type, const Elements& elements,
                                                                   std::shared_ptr<Scenario> scenario);

  [[nodiscard]] static std::shared_ptr<ElementProjectManager> makeReservoir(const Elements& elements,
                                                                            std::shared_ptr<Scenario> scenario);
  [[nodiscard]] static std::shared_ptr<ElementProjectManager> makeDemand(const Elements& elements,
                                                                         std::shared_ptr<Scenario> scenario);
  [[nodiscard]] static std::shared_ptr<ElementProjectManager> makeJunction(const Elements& elements,
                                                                           std::shared_ptr<Scenario> scenario);
  [[nodiscard]] static std::shared_ptr<ElementProjectManager> makeLink(const Elements& elements,
                                                                       std::shared_ptr<Scenario> scenario);

private:
  static const std::map<
      ElementType, std::function<std::shared_ptr<ElementProjectManager>(const Elements&, std::shared_ptr<Scenario>)>>
      mapOfLambdas;
};

} // namespace Lagomare2013
