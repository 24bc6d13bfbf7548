#include "tools/project/OddRow.h"

#include "access/Answer.h"
#include "access/Fields.h"
#include "access/LagomareProjectManager.h"
#include "elements/2010/ElementBdIdFactory.h"
#include "elements/2013/ElementBdIdFactory.h"

#include <fstream>
#include <set>

namespace LagomareTools {

namespace {

constexpr std::size_t upstreamColumn = 2;
constexpr std::size_t downstreamColumn = 3;

QueryResult lastAnswer() {
  std::ifstream answer(LagomareProjectManager::fileResultQuery, std::ios::binary);
  return Lagomare::parseRows(answer);
}

std::set<unsigned> idsOf(ElementType kind, Dialect dialect) {
  const auto ids = dialect == Dialect::of2010 ? Lagomare2010::ElementBdIdFactory::makeVectorOfBdIds(kind)
                                              : Lagomare2013::ElementBdIdFactory::makeVectorOfBdIds(kind);
  return {ids.begin(), ids.end()};
}

} // namespace

std::string findBrokenLink(Dialect dialect) {
  const QueryResult links = lastAnswer();
  std::set<unsigned> nodes;
  for (const ElementType kind : {ElementType::Reservoir, ElementType::HumanDemand, ElementType::Junction})
    nodes.merge(idsOf(kind, dialect));
  for (const auto& [id, rows] : links)
    for (const std::size_t column : {upstreamColumn, downstreamColumn})
      if (nodes.count(Lagomare::unsignedAt(rows.front(), column)) == 0)
        return "link " + std::to_string(id) + (column == upstreamColumn ? " begins" : " ends") + " at node " +
               rows.front()[column] + ", which the project lacks; correct the link or add the node";
  return "";
}

std::string findReservoir(Dialect dialect) {
  const QueryResult rows = lastAnswer();
  for (const unsigned id : idsOf(ElementType::Reservoir, dialect))
    if (rows.count(id) != 0)
      return "a row has the id " + std::to_string(id) + ", which is a reservoir's and no demand's; remove that row";
  return "";
}

} // namespace LagomareTools
