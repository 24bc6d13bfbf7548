#pragma once

#include "elements/2013/ElementProjectManager.h"
#include "lagomare_export.h"
#include "model/Element.h"

#include <memory>
#include <string>
#include <vector>

class Node;

namespace Lagomare2013 {

/// What the loaders of all kinds of node have in common.
class LAGOMARE_EXPORT NodeProjectManager : public ElementProjectManager {
public:
  using ElementProjectManager::ElementProjectManager;

  void addElementInScenery(std::shared_ptr<Element> element) override;

  /// Sets the position, in degrees, from the UTM coordinates in metres (columns 2 and 3), then what
  /// loadElementInfo sets. A coordinate that is no number leaves the node as it was.
  void loadNodeInfo(std::shared_ptr<Node> node, const std::vector<std::string>& row);
};

} // namespace Lagomare2013
