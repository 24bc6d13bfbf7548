#include "tools/system/posix/Pipe.h"

#include "tools/system/Failure.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace LagomareTools {

Pipe makePipe() {
  std::array<int, 2> ends{};
  if (::pipe(ends.data()) != 0)
    throw Failure("cannot make a pipe: " + systemText(errno));
  for (const int end : ends) {
    ::fcntl(end, F_SETFD, FD_CLOEXEC);
    ::fcntl(end, F_SETFL, O_NONBLOCK);
  }
  return {ends[0], ends[1]};
}

void closeDescriptor(int& descriptor) noexcept {
  if (descriptor >= 0)
    ::close(descriptor);
  descriptor = -1;
}

} // namespace LagomareTools
