#include "elements/common/Links.h"

#include "access/Fields.h"
#include "elements/common/Kinds.h"
#include "model/Node.h"

#include <stdexcept>
#include <string>

namespace Lagomare {

namespace {

constexpr double percent = 100.0;

std::shared_ptr<Node> endOf(const Row& row, std::size_t column, const Scenario& scenario, const char* side) {
  auto node = std::dynamic_pointer_cast<Node>(scenario.getElement(unsignedAt(row, column)));
  if (!node)
    throw std::runtime_error(std::string("LinkProjectManager::loadGeneralInfo: invalid ") + side);
  return node;
}

} // namespace

void loadFlowLimits(const QueryResult& rows, const ElementMap& elements, const Interval& interval) {
  forEachElement<Link>(rows, elements, [&interval](const auto& link, const Row& row) {
    Serie& limit = serieOf(*link, flowLimitSeries);
    limit.fill(numberAt(row, 1), interval);
  });
}

void fillLoss(Link& link, double fraction, const Interval& interval) {
  Serie& loss = serieOf(link, lossSeries);
  loss.setInterval(interval);
  loss.fill(fraction * percent);
}

void wire(const std::shared_ptr<Link>& link, const Row& row, const EndColumns& columns, const Scenario& scenario) {
  const auto upstream = endOf(row, columns.upstream, scenario, "upStream");
  const auto downstream = endOf(row, columns.downstream, scenario, "downStream");
  link->upstream = upstream;
  link->downstream = downstream;
  upstream->addDownstream(link);
  downstream->addUpstream(link);
}

} // namespace Lagomare
