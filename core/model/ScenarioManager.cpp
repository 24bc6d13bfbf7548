#include "model/ScenarioManager.h"

unsigned ScenarioManager::instance = 1;
