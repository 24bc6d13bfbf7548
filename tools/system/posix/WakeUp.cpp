#include "tools/system/posix/WakeUp.h"

#include "tools/system/Failure.h"
#include "tools/system/posix/Pipe.h"

#include <array>
#include <cerrno>
#include <unistd.h>

namespace LagomareTools::WakeUp {

namespace {

Pipe pipeToSelf; // never closed while a handler can run

} // namespace

int descriptor() {
  if (pipeToSelf.reader < 0)
    pipeToSelf = makePipe();
  return pipeToSelf.reader;
}

void send() noexcept {
  const int error = errno;
  static_cast<void>(::write(pipeToSelf.writer, "", 1) < 0); // a full pipe wakes just as well
  errno = error;
}

void clear() noexcept {
  std::array<char, 64> bytes{};
  while (::read(pipeToSelf.reader, bytes.data(), bytes.size()) > 0) {
  }
}

} // namespace LagomareTools::WakeUp
