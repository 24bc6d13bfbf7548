#include "model/Reservoir.h"

Reservoir::Reservoir() : Node(ReservoirType(), Point2D()) {}
