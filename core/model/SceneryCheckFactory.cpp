#include "model/SceneryCheckFactory.h"

std::shared_ptr<SceneryCheck> SceneryCheckFactory::make(const std::weak_ptr<Scenario>& scenario) {
  return std::make_shared<SceneryCheck>(scenario);
}
