#pragma once

#include "loader/ImportStatus.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

class Scenario;

/// What an import returns.
struct SceneryProjectManagerRet {
  SceneryProjectManagerRet(const ImportStatus& importStatus, std::shared_ptr<Scenario> importedScenario)
      : scenario(std::move(importedScenario)), status(importStatus.code), message(importStatus.message) {}

  std::shared_ptr<Scenario> scenario; ///< empty unless the status is 3
  std::uint32_t status;               ///< the code of an ImportStatus
  std::string message;                ///< the text of that status
};
