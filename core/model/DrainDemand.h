#pragma once

#include "model/Demand.h"
#include "telu_qt_export.h"

#include <cstdint>
#include <memory>

/// Where water leaves the network: a demand without end.
class TELU_QT_EXPORT DrainDemand : public Demand {
public:
  /// At the point (0, 0), without series.
  DrainDemand();

  std::int64_t hostDrainState = 0; ///< the host's; only carried here

private:
  [[nodiscard]] std::shared_ptr<Demand> makeEmpty() const override;
};
