#include "elements/2013/ElementBdIdFactory.h"

#include "access/LagomareProjectManager.h"
#include "elements/2013/DemandProjectManager.h"
#include "elements/2013/JunctionProjectManager.h"
#include "elements/2013/LinkProjectManager.h"
#include "elements/2013/ReservoirProjectManager.h"
#include "elements/common/Elements.h"
#include "elements/common/Kinds.h"
#include "elements/common/Steps.h"

namespace Lagomare2013 {

using namespace Lagomare;

namespace {

std::string idsOf(const std::string& idField, const std::string& table) {
  return "select " + idField + " from " + table;
}

std::vector<unsigned> idsAnswering(const std::string& sql) { return ElementBdIdFactory::makeVector(ask(sql, true)); }

} // namespace

const std::map<ElementType, std::function<std::vector<unsigned>()>> ElementBdIdFactory::mapOfLambdas{
    {reservoirKind, makeReservoir},
    {humanDemandKind, makeDemand},
    {junctionKind, makeJunction},
    {naturalLinkKind, makeLink}};

std::vector<unsigned> ElementBdIdFactory::makeVectorOfBdIds(ElementType type) {
  return makerOf(mapOfLambdas, type, "ElementBdIdFactory::makeVectorOfBdIds")();
}

std::vector<unsigned> ElementBdIdFactory::makeJunction() {
  return idsAnswering(
      idsOf(LagomareProjectManager::elementBdIdField2, JunctionProjectManager::junctionGeneralInfoTable));
}

std::vector<unsigned> ElementBdIdFactory::makeReservoir() {
  return idsAnswering(
      idsOf(LagomareProjectManager::elementBdIdField2, ReservoirProjectManager::reservoirGeneralInfoTable));
}

std::vector<unsigned> ElementBdIdFactory::makeDemand() {
  return idsAnswering(idsOf(LagomareProjectManager::elementBdIdField2, DemandProjectManager::demandGeneralInfoTable));
}

std::vector<unsigned> ElementBdIdFactory::makeLink() {
  return idsAnswering(idsOf(LinkProjectManager::linkBdIdField1, LinkProjectManager::linkGeneralInfoTable));
}

std::vector<unsigned>
ElementBdIdFactory::makeVector(const std::map<unsigned, std::vector<std::vector<std::string>>>& rows) {
  return idsIn(rows);
}

} // namespace Lagomare2013
