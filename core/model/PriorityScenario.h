#pragma once

#include "model/ExecutionMethod.h"
#include "model/HydrologicalStateConfiguration.h"
#include "model/Interval.h"
#include "model/Scenario.h"
#include "telu_qt_export.h"

#include <memory>
#include <string>

class SceneryCheck;

/// A scenario whose demands and reservoirs are served in the order of their priorities.
class TELU_QT_EXPORT PriorityScenario : public Scenario {
public:
  PriorityScenario(const std::shared_ptr<ExecutionMethod>& executionMethod, unsigned id, const Interval& interval,
                   const std::string& name);

  /// Shared; never empty.
  [[nodiscard]] const std::shared_ptr<HydrologicalStateConfiguration>& getHydrologicalStateConfiguration() const {
    return hydrologicalStates_;
  }

  /// Also makes the settings of a demand, drain or reservoir, with one entry per hydrological state: the
  /// states must be set before.
  void addNode(const std::shared_ptr<Node>& node, unsigned window, unsigned id) override;

  /// The check refers to this scenario from the first call on: before, no shared pointer to it existed.
  [[nodiscard]] const std::shared_ptr<SceneryCheck>& getSceneryCheck();

private:
  std::shared_ptr<HydrologicalStateConfiguration> hydrologicalStates_;
  std::shared_ptr<SceneryCheck> sceneryCheck_;
};
