#include "tools/system/FileWriter.h"

#include "tools/system/Failure.h"
#include "tools/system/Interruption.h"
#include "tools/system/StandardStreams.h"

#include <cerrno>

namespace LagomareTools {

FileWriter::FileWriter(std::FILE* file, std::string name) : file_(file), name_(std::move(name)) {
  std::setvbuf(file_, nullptr, _IONBF, 0); // there is a buffer here
}

void FileWriter::flush() {
  for (std::string_view rest = buffer_; !rest.empty();) {
    Interruption::throwIfRequested();
    std::clearerr(file_);
    errno = 0;
    rest.remove_prefix(std::fwrite(rest.data(), 1, rest.size(), file_));
    if (std::ferror(file_) == 0 || errno == EINTR)
      continue;
    if (errno == EPIPE && file_ == stdout)
      throw ReaderHasGone();
    throw Failure("cannot write " + name_ + ": " + systemText(errno));
  }
  buffer_.clear();
}

void writeToStandardOutput(std::string_view text) {
  FileWriter out(stdout, "standard output");
  out.write(text);
  out.flush();
}

} // namespace LagomareTools
