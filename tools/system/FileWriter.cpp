#include "tools/system/FileWriter.h"

#include "tools/system/Failure.h"

#include <cerrno>
#include <unistd.h>

namespace LagomareTools {

FileWriter::FileWriter(int descriptor, std::string name) : descriptor_(descriptor), name_(std::move(name)) {}

void FileWriter::flush() {
  std::string_view rest = buffer_;
  while (!rest.empty()) {
    const ssize_t written = ::write(descriptor_, rest.data(), rest.size());
    if (written < 0 && errno == EINTR)
      continue;
    if (written < 0)
      throw Failure("cannot write " + name_ + ": " + systemText(errno));
    rest.remove_prefix(static_cast<std::size_t>(written));
  }
  buffer_.clear();
}

} // namespace LagomareTools
