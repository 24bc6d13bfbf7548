#pragma once

#include "model/SceneryCheck.h"
#include "telu_qt_export.h"

#include <memory>

class TELU_QT_EXPORT SceneryCheckFactory {
public:
  [[nodiscard]] static std::shared_ptr<SceneryCheck> make(const std::weak_ptr<Scenario>& scenario);
};
