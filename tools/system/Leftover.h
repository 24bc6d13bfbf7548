#pragma once

#include <functional>
#include <list>

namespace LagomareTools {

/// Something that must not outlive its use, such as a temporary file: removed when this object goes, and also when the
/// program ends at once. Any thread may use these.
class Leftover {
public:
  /// `remove` must not throw, and may be called on any thread.
  explicit Leftover(std::function<void()> remove);
  ~Leftover();
  Leftover(const Leftover&) = delete;
  Leftover& operator=(const Leftover&) = delete;

  /// It shall stay.
  void keep();

  /// Removes everything, the newest first. From then on no other thread makes, keeps or removes a leftover: it waits,
  /// for the end of the program, which must follow.
  static void removeAllAtEnd();

private:
  std::list<std::function<void()>>::iterator place_;
  bool isKept_ = false;
};

} // namespace LagomareTools
