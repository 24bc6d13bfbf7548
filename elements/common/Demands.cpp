#include "elements/common/Demands.h"

#include "elements/common/Elements.h"
#include "elements/common/Kinds.h"
#include "model/Calendar.h"
#include "model/ElementFactory.h"
#include "model/Node.h"
#include "model/NumericalUtils.h"

namespace Lagomare {

namespace {

constexpr double drainThreshold = 1000.0; // m³/s
constexpr double tolerance = 1e-6;

} // namespace

bool isDrain(Demand& demand, const Interval& interval) {
  const Serie& serie = serieOf(demand, demandSeries);
  for (Date date = interval.getBegin(); date <= interval.getEnd(); date += Calendar::incInterval(date, interval))
    if (0.0 > NumericalUtils::subtractDoubles(serie.getValue(date), drainThreshold, tolerance))
      return false;
  return true;
}

std::shared_ptr<Element> makeDrain(Demand& demand) {
  const auto drain = std::dynamic_pointer_cast<Node>(ElementFactory::make(drainKind));
  drain->setX(demand.getX());
  drain->setY(demand.getY());
  drain->bdId = demand.bdId;
  drain->setName(demand.getName());
  return drain;
}

} // namespace Lagomare
