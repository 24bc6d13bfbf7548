#include "model/Demand.h"

#include "model/Container.h"
#include "model/Link.h"
#include "model/Serie.h"
#include "model/SerieType.h"

Demand::Demand(const EnumElementType& kind) : Demand(kind, Point2D()) {}

Demand::Demand(const EnumElementType& kind, const Point2D& position) : Node(kind, position) {
  setSeriesInput(std::make_shared<DemandSeriesInput>());
}

std::shared_ptr<Demand> Demand::copy() const {
  auto demand = makeEmpty();
  demand->bdId = bdId;
  demand->setName(getName());
  demand->setX(getX());
  demand->setY(getY());
  demand->hostValues = hostValues;
  demand->hostSecondValues = hostSecondValues;
  demand->hostState = hostState;
  for (std::size_t window = 0; window < getWindows().size(); ++window) {
    if (window > 0)
      demand->addWindow(std::make_shared<Container<SerieType>>());
    for (const auto& [type, serie] : getWindows()[window]->all())
      demand->getWindows()[window]->set(type, std::make_shared<Serie>(*serie));
  }
  return demand;
}

void Demand::addDownstream(const std::shared_ptr<Link>& link) { Node::addDownstream(link); }

void Demand::removeDownstream(const std::shared_ptr<Link>& link) { Node::removeDownstream(link); }

std::shared_ptr<Demand> Demand::makeEmpty() const { return std::make_shared<Demand>(*getElementType()); }
