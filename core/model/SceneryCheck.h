#pragma once

#include "telu_qt_export.h"

#include <memory>
#include <utility>

class Scenario;

/// The object through which a host checks a scenario. It refers to the scenario weakly: the scenario owns it.
class TELU_QT_EXPORT SceneryCheck {
public:
  explicit SceneryCheck(std::weak_ptr<Scenario> scenario);

  /// Empty before the scenario is bound and after it is gone.
  [[nodiscard]] std::shared_ptr<Scenario> getScenario() const { return scenario_.lock(); }
  void bind(std::weak_ptr<Scenario> scenario) { scenario_ = std::move(scenario); }

private:
  std::weak_ptr<Scenario> scenario_;
};
