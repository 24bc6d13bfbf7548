#include "tools/cli/BrokenLink.h"

#include "access/Answer.h"
#include "access/Fields.h"
#include "access/LagomareProjectManager.h"
#include "elements/2010/ElementBdIdFactory.h"
#include "elements/2013/ElementBdIdFactory.h"

#include <fstream>
#include <set>

namespace LagomareCli {

namespace {

constexpr std::size_t upstreamColumn = 2;
constexpr std::size_t downstreamColumn = 3;

std::set<unsigned> nodeIds(Dialect dialect) {
  const auto idsOf = dialect == Dialect::of2010 ? Lagomare2010::ElementBdIdFactory::makeVectorOfBdIds
                                                : Lagomare2013::ElementBdIdFactory::makeVectorOfBdIds;
  std::set<unsigned> ids;
  for (const ElementType kind : {ElementType::Reservoir, ElementType::HumanDemand, ElementType::Junction}) {
    const auto idsOfKind = idsOf(kind);
    ids.insert(idsOfKind.begin(), idsOfKind.end());
  }
  return ids;
}

} // namespace

std::string findBrokenLink(Dialect dialect) {
  std::ifstream answer(LagomareProjectManager::fileResultQuery, std::ios::binary);
  const QueryResult links = Lagomare::parseRows(answer);
  const std::set<unsigned> nodes = nodeIds(dialect);
  for (const auto& [id, rows] : links)
    for (const std::size_t column : {upstreamColumn, downstreamColumn}) {
      const unsigned node = Lagomare::unsignedAt(rows.front(), column);
      if (nodes.count(node) == 0)
        return "link " + std::to_string(id) + (column == upstreamColumn ? " begins" : " ends") + " at node " +
               std::to_string(node) + ", which the project lacks; correct the link or add the node";
    }
  return "";
}

} // namespace LagomareCli
