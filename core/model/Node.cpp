#include "model/Node.h"

#include "model/Link.h"

Node::Node(const EnumElementType& kind, const Point2D& position) : Element(kind), position_(position) {}

Node::~Node() = default;

void Node::addUpstream(const std::shared_ptr<Link>& link) { upstream_.add(link.get(), link); }

void Node::addDownstream(const std::shared_ptr<Link>& link) { downstream_.add(link.get(), link); }

void Node::removeUpstream(const std::shared_ptr<Link>& link) { upstream_.remove(link.get()); }

void Node::removeDownstream(const std::shared_ptr<Link>& link) { downstream_.remove(link.get()); }

void Node::replaceLink(const std::shared_ptr<Link>& oldLink, const std::shared_ptr<Link>& newLink) {
  upstream_.replace(oldLink.get(), newLink.get(), newLink);
  downstream_.replace(oldLink.get(), newLink.get(), newLink);
}
