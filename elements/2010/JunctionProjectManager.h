#pragma once

#include "elements/2010/NodeProjectManager.h"
#include "lagomare_export.h"

namespace Lagomare2010 {

/// Loads junctions: general information and natural flows.
class LAGOMARE_EXPORT JunctionProjectManager : public NodeProjectManager {
public:
  using NodeProjectManager::NodeProjectManager;

  void makeLambdas() override;
  /// "JunctionProjectManager::validElement(): invalid element type"
  void validElement() override;
  [[nodiscard]] unsigned getElementType() override;
};

} // namespace Lagomare2010
