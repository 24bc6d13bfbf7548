#include "tools/export/report/KindLook.h"

namespace LagomareTools {

const KindLook& lookOf(ElementType type) {
  static const KindLook reservoir{"M0-9L9.5 7.5H-9.5z", 9.5, 3};
  static const KindLook human{"M-6 0a6 6 0 1 0 12 0a6 6 0 1 0-12 0z", 6.0, 2};
  static const KindLook animal{"M0-7L6.7-2.2L4.1 5.7H-4.1L-6.7-2.2z", 7.0, 2};
  static const KindLook industrial{"M-5.5-5.5h11v11h-11z", 6.0, 2};
  static const KindLook agriculture{"M0-7.5L7.5 0L0 7.5L-7.5 0z", 7.5, 2};
  static const KindLook drain{"M0 7.5L-7.5-5H7.5z", 7.5, 2};
  static const KindLook basin{"M-7.5 0L-3.7-6.5H3.7L7.5 0L3.7 6.5H-3.7z", 7.5, 2};
  static const KindLook junction{"M-4 0a4 4 0 1 0 8 0a4 4 0 1 0-8 0z", 4.0, 1};
  switch (type) {
  case ElementType::Reservoir:
    return reservoir;
  case ElementType::AnimalDemand:
    return animal;
  case ElementType::IndustrialDemand:
    return industrial;
  case ElementType::AgricultureDemand:
    return agriculture;
  case ElementType::DrainDemand:
    return drain;
  case ElementType::Basin:
    return basin;
  case ElementType::Junction:
    return junction;
  default:
    return human;
  }
}

const char* arrowPath(bool isTwoWay) { return isTwoWay ? "M3-5L12 0L3 5zM-3-5L-12 0L-3 5z" : "M-5-5L6 0L-5 5z"; }

} // namespace LagomareTools
