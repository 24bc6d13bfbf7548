#include "elements/2013/ElementProjectManagerFactory.h"

#include "elements/2013/DemandProjectManager.h"
#include "elements/2013/JunctionProjectManager.h"
#include "elements/2013/LinkProjectManager.h"
#include "elements/2013/ReservoirProjectManager.h"
#include "elements/common/Elements.h"
#include "elements/common/Kinds.h"

namespace Lagomare2013 {

using namespace Lagomare;

const std::map<ElementType,
               std::function<std::shared_ptr<ElementProjectManager>(const ElementMap&, std::shared_ptr<Scenario>)>>
    ElementProjectManagerFactory::mapOfLambdas{{reservoirKind, makeReservoir},
                                               {humanDemandKind, makeDemand},
                                               {junctionKind, makeJunction},
                                               {naturalLinkKind, makeLink}};

std::shared_ptr<ElementProjectManager> ElementProjectManagerFactory::make(ElementType type, const ElementMap& elements,
                                                                          std::shared_ptr<Scenario> scenario) {
  return makerOf(mapOfLambdas, type, "ElementProjectManagerFactory::make")(elements, scenario);
}

std::shared_ptr<ElementProjectManager> ElementProjectManagerFactory::makeReservoir(const ElementMap& elements,
                                                                                   std::shared_ptr<Scenario> scenario) {
  return std::make_shared<ReservoirProjectManager>(elements, scenario);
}

std::shared_ptr<ElementProjectManager> ElementProjectManagerFactory::makeDemand(const ElementMap& elements,
                                                                                std::shared_ptr<Scenario> scenario) {
  return std::make_shared<DemandProjectManager>(elements, scenario);
}

std::shared_ptr<ElementProjectManager> ElementProjectManagerFactory::makeJunction(const ElementMap& elements,
                                                                                  std::shared_ptr<Scenario> scenario) {
  return std::make_shared<JunctionProjectManager>(elements, scenario);
}

std::shared_ptr<ElementProjectManager> ElementProjectManagerFactory::makeLink(const ElementMap& elements,
                                                                              std::shared_ptr<Scenario> scenario) {
  return std::make_shared<LinkProjectManager>(elements, scenario);
}

} // namespace Lagomare2013
