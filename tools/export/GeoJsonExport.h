#pragma once

#include "tools/system/FileWriter.h"

class Scenario;

namespace LagomareTools {

/// Writes the network as one GeoJSON FeatureCollection (RFC 7946): nodes are Points, links LineStrings from upstream to
/// downstream node; what has no position that a map could show has no geometry. Does not flush. Throws Failure.
void writeGeoJson(FileWriter& out, const Scenario& scenario);

} // namespace LagomareTools
