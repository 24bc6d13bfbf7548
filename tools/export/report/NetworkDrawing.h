#pragma once

#include "tools/export/report/NetworkMap.h"
#include "tools/system/FileWriter.h"

#include <string>

namespace LagomareTools {

/// Writes the map as an SVG picture, complete without a script or a style: symbols and labels at their size, and how
/// far one must look in to see the rest as classes from-0, from-1 … (numOfMapLevels). Throws Failure.
void writeNetworkDrawing(FileWriter& out, const Network& network);

/// An element's name in the page: "node-7", "link-12".
[[nodiscard]] std::string keyOf(const Element& element);

} // namespace LagomareTools
