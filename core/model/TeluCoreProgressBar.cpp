#include "model/TeluCoreProgressBar.h"

#include <utility>

const char* TeluCoreProgressBar::ProgressCancelException::what() const noexcept {
  return "TeluCoreProgressBar canceled";
}

TeluCoreProgressBar::TeluCoreProgressBar(unsigned start, unsigned end, std::function<bool(long, long)> callback)
    : start_(start), current_(start), end_(end), callback_(std::move(callback)) {}

bool TeluCoreProgressBar::update() {
  ++current_;
  return !callback_ || callback_(static_cast<long>(current_ - start_), static_cast<long>(end_ - start_));
}
