#include "model/SceneryCheck.h"

SceneryCheck::SceneryCheck(std::weak_ptr<Scenario> scenario) : scenario_(std::move(scenario)) {}
