#include "model/PriorityScenario.h"

#include "model/Node.h"
#include "model/PriorityDemandSettings.h"
#include "model/PriorityReservoirSettings.h"
#include "model/SceneryCheckFactory.h"

PriorityScenario::PriorityScenario(const std::shared_ptr<ExecutionMethod>& executionMethod, unsigned id,
                                   const Interval& interval, const std::string& name)
    : Scenario(executionMethod, id, interval, name),
      hydrologicalStates_(std::make_shared<HydrologicalStateConfiguration>()),
      sceneryCheck_(SceneryCheckFactory::make(weak_from_this())) {}

void PriorityScenario::addNode(const std::shared_ptr<Node>& node, unsigned window, unsigned id) {
  Scenario::addNode(node, window, id);
  const auto type = node->getElementType()->type();
  const unsigned states = hydrologicalStates_->getNumOfStates();
  if (reservoirTypes.count(type) != 0)
    getSettingsManager().setSettings(id, std::make_shared<PriorityReservoirSettings>(states));
  else if (demandTypes.count(type) != 0)
    getSettingsManager().setSettings(id, std::make_shared<PriorityDemandSettings>(states));
}

const std::shared_ptr<SceneryCheck>& PriorityScenario::getSceneryCheck() {
  sceneryCheck_->bind(weak_from_this());
  return sceneryCheck_;
}
