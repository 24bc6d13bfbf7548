#include "elements/2010/ElementProjectManagerFactory.h"

#include "elements/2010/DemandProjectManager.h"
#include "elements/2010/JunctionProjectManager.h"
#include "elements/2010/LinkProjectManager.h"
#include "elements/2010/ReservoirProjectManager.h"

#include <stdexcept>

namespace Lagomare2010 {

const std::map<ElementType, std::function<std::shared_ptr<ElementProjectManager>(
                                const ElementProjectManagerFactory::Elements&, std::shared_ptr<Scenario>)>>
    ElementProjectManagerFactory::mapOfLambdas{{ElementType::Reservoir, makeReservoir},
                                               {ElementType::HumanDemand, makeDemand},
                                               {ElementType::Junction, makeJunction},
                                               {ElementType::NaturalLink, makeLink}};

std::shared_ptr<ElementProjectManager> ElementProjectManagerFactory::make(ElementType type, const Elements& elements,
                                                                          std::shared_ptr<Scenario> scenario) {
  const auto maker = mapOfLambdas.find(type);
  if (maker == mapOfLambdas.end())
    throw std::invalid_argument("ElementProjectManagerFactory::make: invalid element type");
  return maker->second(elements, scenario);
}

std::shared_ptr<ElementProjectManager> ElementProjectManagerFactory::makeReservoir(const Elements& elements,
                                                                                   std::shared_ptr<Scenario> scenario) {
  return std::make_shared<ReservoirProjectManager>(elements, scenario);
}

std::shared_ptr<ElementProjectManager> ElementProjectManagerFactory::makeDemand(const Elements& elements,
                                                                                std::shared_ptr<Scenario> scenario) {
  return std::make_shared<DemandProjectManager>(elements, scenario);
}

std::shared_ptr<ElementProjectManager> ElementProjectManagerFactory::makeJunction(const Elements& elements,
                                                                                  std::shared_ptr<Scenario> scenario) {
  return std::make_shared<JunctionProjectManager>(elements, scenario);
}

std::shared_ptr<ElementProjectManager> ElementProjectManagerFactory::makeLink(const Elements& elements,
                                                                              std::shared_ptr<Scenario> scenario) {
  return std::make_shared<LinkProjectManager>(elements, scenario);
}

} // namespace Lagomare2010
