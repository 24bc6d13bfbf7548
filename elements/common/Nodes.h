#pragma once

#include "access/QueryResult.h"
#include "elements/common/ElementMap.h"
#include "elements/common/Elements.h"
#include "model/Node.h"

namespace Lagomare {

/// Sets the position in degrees from UTM coordinates in metres, the easting converted first.
void locate(Node& node, const Row& row, std::size_t eastingColumn, std::size_t northingColumn);

/// The general information of nodes of the class N: the loader reads each from the first row of its id, then
/// the natural flows of all.
template <typename N, typename Loader>
void loadNodes(const QueryResult& rows, const ElementMap& elements, Loader& loader) {
  forEachElement<N>(rows, elements, [&loader](const auto& node, const Row& row) { loader.loadNodeInfo(node, row); });
  loader.loadNatFlowSerie();
}

} // namespace Lagomare
