#include "model/Junction.h"

Junction::Junction() : Node(JunctionType(), Point2D()) {}
