#include "model/Scenario.h"

#include "model/Link.h"
#include "model/Node.h"

#include <stdexcept>

namespace {

template <typename T>
void add(OrderedIndex<unsigned, std::shared_ptr<T>>& index, const std::shared_ptr<T>& element, unsigned window,
         unsigned id, const char* operation, const char* kind) {
  if (!element)
    throw std::invalid_argument(std::string(operation) + ": no " + kind + " given");
  if (window != 0)
    throw std::out_of_range("Invalid window index");
  if (!index.add(id, element))
    throw std::invalid_argument(std::string(operation) + ": the scenario already holds a " + kind + " with the id " +
                                std::to_string(id));
}

template <typename T>
bool holds(const OrderedIndex<unsigned, std::shared_ptr<T>>& index, const std::shared_ptr<Element>& element) {
  const auto* found = index.find(element->bdId);
  return found != nullptr && *found == element;
}

} // namespace

Scenario::Scenario(const std::shared_ptr<ExecutionMethod>& executionMethod, unsigned id, const Interval& interval,
                   const std::string& name)
    : executionMethod_(executionMethod), id_(id), interval_(interval), name_(name) {}

Scenario::~Scenario() = default;

std::shared_ptr<Element> Scenario::getElement(unsigned id) const {
  if (const auto* node = nodes_.find(id))
    return *node;
  const auto* link = links_.find(id);
  return link == nullptr ? nullptr : *link;
}

std::vector<std::shared_ptr<Element>> Scenario::getElements() const {
  std::vector<std::shared_ptr<Element>> elements;
  elements.reserve(nodes_.values().size() + links_.values().size());
  elements.insert(elements.end(), nodes_.values().begin(), nodes_.values().end());
  elements.insert(elements.end(), links_.values().begin(), links_.values().end());
  return elements;
}

void Scenario::addLink(const std::shared_ptr<Link>& link, unsigned window) {
  add(links_, link, window, link ? link->bdId : 0, "Scenario::addLink", "link");
}

void Scenario::addNode(const std::shared_ptr<Node>& node, unsigned window, unsigned id) {
  add(nodes_, node, window, id, "Scenario::addNode", "node");
}

bool Scenario::removeElement(const std::shared_ptr<Element>& element) {
  if (holds(nodes_, element))
    return nodes_.remove(element->bdId);
  return holds(links_, element) && links_.remove(element->bdId);
}

bool Scenario::replaceLink(const std::shared_ptr<Link>& oldLink, const std::shared_ptr<Link>& newLink) {
  return holds<Link>(links_, oldLink) && links_.replace(oldLink->bdId, newLink->bdId, newLink);
}
