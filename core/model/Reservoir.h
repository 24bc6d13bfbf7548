#pragma once

#include "model/Node.h"
#include "model/ReservoirInfo.h"
#include "telu_qt_export.h"

#include <utility>

/// A node that stores water.
class TELU_QT_EXPORT Reservoir : public Node {
public:
  Reservoir();

  [[nodiscard]] const ReservoirInfo& getReservoirInfo() const { return info_; }
  void setReservoirInfo(ReservoirInfo info) { info_ = std::move(info); }

private:
  ReservoirInfo info_;
};
