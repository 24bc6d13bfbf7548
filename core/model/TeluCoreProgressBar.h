#pragma once

#include "telu_qt_export.h"

#include <exception>
#include <functional>

/// Counts steps and tells a host about each.
class TELU_QT_EXPORT TeluCoreProgressBar {
public:
  /// Thrown by whoever is told to stop; what() is "TeluCoreProgressBar canceled".
  class TELU_QT_EXPORT ProgressCancelException : public std::exception {
  public:
    [[nodiscard]] const char* what() const noexcept override;
  };

  /// Steps from start to end. The callback is given the steps done and the steps in all, and answers whether
  /// to go on; an empty one always does.
  TeluCoreProgressBar(unsigned start, unsigned end, std::function<bool(long, long)> callback);

  /// One step further. The callback's answer: false asks to stop.
  [[nodiscard]] bool update();

private:
  unsigned start_;
  unsigned current_;
  unsigned end_;
  std::function<bool(long, long)> callback_;
};
