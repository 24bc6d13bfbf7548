#pragma once

#include "model/ElementType.h"
#include "telu_qt_export.h"

#include <memory>

class Element;
class Link;
class Scenario;

/// Changes to a scenario that touch no database. Each takes constant time per link concerned.
class TELU_QT_EXPORT CoreServiceManager {
public:
  /// Takes the element out of the scenario. A link leaves the lists of its nodes; a node takes its links and
  /// its settings with it. An element that the scenario does not hold is left alone.
  static void deleteElementNoDatabase(std::shared_ptr<Scenario> scenario, std::shared_ptr<Element> element);

  /// Puts a new link of the given kind in the old one's place, in the scenario and in its nodes' lists: id,
  /// name, nodes, direction mark and series are carried over. Returns the new link. Throws
  /// std::invalid_argument "CoreServiceManager::changeLinkTypeNoDatabase: invalid element type" for what is
  /// no kind of link, and "CoreServiceManager::changeLinkTypeNoDatabase: the link is not in the scenario".
  static std::shared_ptr<Link> changeLinkTypeNoDatabase(std::shared_ptr<Link> link, ElementType type,
                                                        std::shared_ptr<Scenario> scenario);
};
