#pragma once

#include "model/DemandSeriesInput.h"
#include "model/ElementType.h"
#include "model/Node.h"
#include "model/Point2D.h"
#include "telu_qt_export.h"

#include <cstdint>
#include <memory>
#include <vector>

/// A node that takes water.
class TELU_QT_EXPORT Demand : public Node {
public:
  /// A demand of one of the kinds 2 to 6.
  explicit Demand(const EnumElementType& kind);

  /// A demand of the same kind with the same id, name, position and values, copies of the series, and no
  /// links.
  [[nodiscard]] std::shared_ptr<Demand> copy() const;

  /// What a demand does not consume flows back through its downstream links.
  void addDownstream(const std::shared_ptr<Link>& link) override;
  void removeDownstream(const std::shared_ptr<Link>& link) override;

  // The host's; empty or zero in a new demand and only carried here.
  std::vector<double> hostValues;
  std::vector<double> hostSecondValues;
  std::int64_t hostState = 0;

protected:
  Demand(const EnumElementType& kind, const Point2D& position);

private:
  [[nodiscard]] virtual std::shared_ptr<Demand> makeEmpty() const;
};
