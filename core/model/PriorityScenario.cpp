#include "model/PriorityScenario.h"

#include "model/ElementType.h"
#include "model/Node.h"
#include "model/PriorityDemandSettings.h"
#include "model/PriorityReservoirSettings.h"
#include "model/SceneryCheckFactory.h"
#include "model/Settings.h"

#include <utility>

namespace {

/// Empty for a kind that has no settings.
std::shared_ptr<Settings> makeSettings(ElementType type, unsigned numOfStates) {
  if (reservoirTypes.count(type) != 0)
    return std::make_shared<PriorityReservoirSettings>(numOfStates);
  if (demandTypes.count(type) != 0)
    return std::make_shared<PriorityDemandSettings>(numOfStates);
  return nullptr;
}

} // namespace

PriorityScenario::PriorityScenario(const std::shared_ptr<ExecutionMethod>& executionMethod, unsigned id,
                                   const Interval& interval, const std::string& name)
    : Scenario(executionMethod, id, interval, name),
      hydrologicalStates_(std::make_shared<HydrologicalStateConfiguration>()),
      sceneryCheck_(SceneryCheckFactory::make(weak_from_this())) {}

void PriorityScenario::addNode(const std::shared_ptr<Node>& node, unsigned window, unsigned id) {
  Scenario::addNode(node, window, id);
  if (auto settings = makeSettings(node->getElementType()->type(), hydrologicalStates_->getNumOfStates()))
    getSettingsManager().setSettings(id, std::move(settings));
}

const std::shared_ptr<SceneryCheck>& PriorityScenario::getSceneryCheck() {
  sceneryCheck_->bind(weak_from_this());
  return sceneryCheck_;
}
