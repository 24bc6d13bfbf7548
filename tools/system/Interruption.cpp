#include "tools/system/Interruption.h"

namespace LagomareTools {

void Interruption::throwIfRequested() {
  if (isRequested())
    throw Interrupted();
}

} // namespace LagomareTools
