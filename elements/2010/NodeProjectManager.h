#pragma once

#include "elements/2010/ElementProjectManager.h"
#include "lagomare_export.h"
#include "model/Element.h"

#include <memory>
#include <string>
#include <vector>

class Node;

namespace Lagomare2010 {

/// What the loaders of all kinds of node have in common.
class LAGOMARE_EXPORT NodeProjectManager : public ElementProjectManager {
public:
  using ElementProjectManager::ElementProjectManager;

  void addElementInScenery(std::shared_ptr<Element> element) override;

  /// Sets the position, in degrees, from the UTM coordinates in metres (columns 3 and 4), then what
  /// loadElementInfo sets. A coordinate that is no number leaves the node as it was.
  void loadNodeInfo(std::shared_ptr<Node> node, const std::vector<std::string>& row);

  /// A step of every kind of node: general information, then natural flows. Without rows it does nothing at
  /// all.
  static void loadGeneralInfo(ElementProjectManager* base, TeluCoreProgressBar& bar);
};

} // namespace Lagomare2010
