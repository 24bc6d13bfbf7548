#pragma once

#include "model/ExecutionMethod.h"
#include "model/Interval.h"
#include "model/OrderedIndex.h"
#include "model/SettingsManager.h"
#include "telu_qt_export.h"

#include <memory>
#include <string>
#include <vector>

class Element;
class Link;
class Node;

/// A network over an interval. It shares ownership of its elements. Nodes and links have ids of their own:
/// node 3 and link 3 can stand side by side.
class TELU_QT_EXPORT Scenario : public std::enable_shared_from_this<Scenario> {
public:
  Scenario(const std::shared_ptr<ExecutionMethod>& executionMethod, unsigned id, const Interval& interval,
           const std::string& name);
  virtual ~Scenario();
  Scenario(const Scenario&) = delete;
  Scenario& operator=(const Scenario&) = delete;

  [[nodiscard]] unsigned getId() const { return id_; }
  [[nodiscard]] const std::string& getName() const { return name_; }
  [[nodiscard]] const Interval& getInterval() const { return interval_; }
  [[nodiscard]] const std::shared_ptr<ExecutionMethod>& getExecutionMethod() const { return executionMethod_; }
  [[nodiscard]] SettingsManager& getSettingsManager() { return settingsManager_; }
  [[nodiscard]] const SettingsManager& getSettingsManager() const { return settingsManager_; }

  /// The node with this database id, else the link with it, else an empty pointer.
  [[nodiscard]] std::shared_ptr<Element> getElement(unsigned id) const;
  /// The nodes, then the links, each in the order in which they came.
  [[nodiscard]] std::vector<std::shared_ptr<Element>> getElements() const;

  /// Puts a link in under its database id; its ends are wired by whoever knows them. The window must be 0:
  /// std::out_of_range "Invalid window index" otherwise. Throws std::invalid_argument, naming the id, where
  /// the scenario holds such a link.
  virtual void addLink(const std::shared_ptr<Link>& link, unsigned window);
  /// Puts a node in under the id, which is its own database id. Errors as for links.
  virtual void addNode(const std::shared_ptr<Node>& node, unsigned window, unsigned id);

  /// Takes out this very element; false where the scenario does not hold it.
  bool removeElement(const std::shared_ptr<Element>& element);
  /// Puts a link into the place of another; false where the scenario does not hold that one.
  bool replaceLink(const std::shared_ptr<Link>& oldLink, const std::shared_ptr<Link>& newLink);

private:
  std::shared_ptr<ExecutionMethod> executionMethod_;
  unsigned id_;
  Interval interval_;
  std::string name_;
  OrderedIndex<unsigned, std::shared_ptr<Node>> nodes_;
  OrderedIndex<unsigned, std::shared_ptr<Link>> links_;
  SettingsManager settingsManager_;
};
