#pragma once

namespace LagomareTools {

/// The two descriptors of a pipe; -1 where there is none. Owned by whoever made it.
struct Pipe {
  int reader = -1;
  int writer = -1;
};

/// A pipe whose ends do not block and are closed when another program is started. Throws Failure.
[[nodiscard]] Pipe makePipe();

/// Closes a descriptor, if there is one, and makes it -1.
void closeDescriptor(int& descriptor) noexcept;

} // namespace LagomareTools
