#pragma once

#include "model/Settings.h"
#include "telu_qt_export.h"

#include <memory>
#include <unordered_map>

/// The settings of a scenario's elements, by database id.
class TELU_QT_EXPORT SettingsManager {
public:
  /// Shared; empty where the element has none.
  [[nodiscard]] std::shared_ptr<Settings> getSettings(unsigned elementId) const;
  void setSettings(unsigned elementId, std::shared_ptr<Settings> settings);
  void removeSettings(unsigned elementId);

private:
  std::unordered_map<unsigned, std::shared_ptr<Settings>> settings_;
};
