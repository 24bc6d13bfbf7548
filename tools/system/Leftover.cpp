#include "tools/system/Leftover.h"

#include <mutex>

namespace LagomareTools {

namespace {

/// Never destroyed: the thread that waits for signals may need it to the very end.
struct Register {
  std::mutex mutex;
  std::list<std::function<void()>> removals;
};

Register& theRegister() {
  static auto* const only = new Register;
  return *only;
}

} // namespace

Leftover::Leftover(std::function<void()> remove) {
  const std::lock_guard lock(theRegister().mutex);
  place_ = theRegister().removals.insert(theRegister().removals.end(), std::move(remove));
}

Leftover::~Leftover() {
  const std::lock_guard lock(theRegister().mutex);
  if (!isKept_) {
    (*place_)();
    theRegister().removals.erase(place_);
  }
}

void Leftover::keep() {
  const std::lock_guard lock(theRegister().mutex);
  if (!isKept_)
    theRegister().removals.erase(place_);
  isKept_ = true;
}

void Leftover::removeAllAtEnd() {
  theRegister().mutex.lock();
  auto& removals = theRegister().removals;
  for (auto removal = removals.rbegin(); removal != removals.rend(); ++removal)
    (*removal)();
}

} // namespace LagomareTools
