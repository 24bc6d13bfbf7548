#include "model/DrainDemand.h"

#include "model/Point2D.h"

DrainDemand::DrainDemand() : Demand(DrainDemandType(), Point2D{0.0, 0.0}) {}

std::shared_ptr<Demand> DrainDemand::makeEmpty() const {
  auto drain = std::make_shared<DrainDemand>();
  drain->hostDrainState = hostDrainState;
  return drain;
}
