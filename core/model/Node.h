#pragma once

#include "model/Element.h"
#include "model/ElementType.h"
#include "model/OrderedIndex.h"
#include "model/Point2D.h"
#include "telu_qt_export.h"

#include <list>
#include <memory>

class Link;

/// A point of the network. It shares ownership of its links; they refer back to it weakly.
class TELU_QT_EXPORT Node : public Element {
public:
  Node(const EnumElementType& kind, const Point2D& position);
  ~Node() override;

  /// Longitude and latitude in degrees once a project is loaded.
  [[nodiscard]] double getX() const { return position_.x; }
  [[nodiscard]] double getY() const { return position_.y; }
  void setX(double x) { position_.x = x; }
  void setY(double y) { position_.y = y; }

  /// A link that the list already holds is not added again.
  void addUpstream(const std::shared_ptr<Link>& link);
  virtual void addDownstream(const std::shared_ptr<Link>& link);
  void removeUpstream(const std::shared_ptr<Link>& link);
  virtual void removeDownstream(const std::shared_ptr<Link>& link);
  /// Puts one link into the place of another in whichever of the two lists hold it.
  void replaceLink(const std::shared_ptr<Link>& oldLink, const std::shared_ptr<Link>& newLink);

  /// In the order in which they were added.
  [[nodiscard]] const std::list<std::shared_ptr<Link>>& getUpstreamLinks() const { return upstream_.values(); }
  [[nodiscard]] const std::list<std::shared_ptr<Link>>& getDownstreamLinks() const { return downstream_.values(); }

private:
  using Links = OrderedIndex<const Link*, std::shared_ptr<Link>>;

  Point2D position_;
  Links upstream_;
  Links downstream_;
};
