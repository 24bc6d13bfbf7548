#pragma once

#include "model/Element.h"
#include "model/ElementType.h"
#include "telu_qt_export.h"

#include <memory>

class Node;

/// A stretch that carries water from its upstream to its downstream node. It owns neither.
class TELU_QT_EXPORT Link : public Element {
public:
  explicit Link(const EnumElementType& kind);
  ~Link() override;

  [[nodiscard]] bool getIsBidirectional() const { return isBidirectional_; }
  void setIsBidirectional(bool isBidirectional) { isBidirectional_ = isBidirectional; }

  std::weak_ptr<Node> upstream;
  std::weak_ptr<Node> downstream;

private:
  bool isBidirectional_ = false;
};
