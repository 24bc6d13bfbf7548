#include "elements/2010/ElementBdIdFactory.h"

#include "elements/common/Elements.h"
#include "elements/common/Kinds.h"
#include "elements/common/Steps.h"

namespace Lagomare2010 {

using namespace Lagomare;

namespace {

std::string idsOfPoints(const char* code) { return std::string("select NumNo from Pontos where Tipo = ") + code; }

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

std::vector<unsigned> ElementBdIdFactory::makeJunction() { return idsAnswering(idsOfPoints("1")); }

std::vector<unsigned> ElementBdIdFactory::makeReservoir() { return idsAnswering(idsOfPoints("2")); }

std::vector<unsigned> ElementBdIdFactory::makeDemand() { return idsAnswering(idsOfPoints("3")); }

std::vector<unsigned> ElementBdIdFactory::makeLink() { return idsAnswering("select NumLnk from Links"); }

std::vector<unsigned>
ElementBdIdFactory::makeVector(const std::map<unsigned, std::vector<std::vector<std::string>>>& rows) {
  return idsIn(rows);
}

} // namespace Lagomare2010
