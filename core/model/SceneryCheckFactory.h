#pragma once

#include "model/SceneryCheck.h"

class TELU_QT_EXPORT SceneryCheckFactory {
public:
  [[nodiscard]] static std::shared_ptr<SceneryCheck> make(const std::weak_ptr<Scenario>& scenario);
};
