#include "model/SettingsManager.h"

#include <utility>

std::shared_ptr<Settings> SettingsManager::getSettings(unsigned elementId) const {
  const auto found = settings_.find(elementId);
  return found == settings_.end() ? nullptr : found->second;
}

void SettingsManager::setSettings(unsigned elementId, std::shared_ptr<Settings> settings) {
  settings_[elementId] = std::move(settings);
}

void SettingsManager::removeSettings(unsigned elementId) { settings_.erase(elementId); }
