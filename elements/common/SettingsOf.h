#pragma once

#include "model/Element.h"
#include "model/Scenario.h"

#include <memory>
#include <stdexcept>

namespace Lagomare {

/// The element's settings, as an S. Throws std::invalid_argument "Passed element is not valid for element setting"
/// where it has none or they are something else.
template <typename S>
[[nodiscard]] S& settingsOf(const Element& element, Scenario& scenario) {
  const auto settings = std::dynamic_pointer_cast<S>(scenario.getSettingsManager().getSettings(element.bdId));
  if (!settings)
    throw std::invalid_argument("Passed element is not valid for element setting");
  return *settings;
}

} // namespace Lagomare
