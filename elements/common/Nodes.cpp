#include "elements/common/Nodes.h"

#include "access/Fields.h"
#include "model/TeluUtmDegreeConversion.h"

namespace Lagomare {

void locate(Node& node, const Row& row, std::size_t eastingColumn, std::size_t northingColumn) {
  const double utmX = numberAt(row, eastingColumn);
  const double utmY = numberAt(row, northingColumn);
  const auto [longitude, latitude] = TeluUtmDegreeConversion::utmToDegree(utmX, utmY);
  node.setX(longitude);
  node.setY(latitude);
}

} // namespace Lagomare
