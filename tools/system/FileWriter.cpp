#include "tools/system/FileWriter.h"

#include "tools/system/Failure.h"
#include "tools/system/Interruption.h"
#include "tools/system/StandardStreams.h"

#include <cerrno>
#include <utility>

namespace LagomareTools {

namespace {

/// The file has no buffer.
void writeWhole(std::FILE* file, const std::string& name, std::string_view text) {
  while (!text.empty()) {
    Interruption::throwIfRequested();
    std::clearerr(file);
    errno = 0;
    text.remove_prefix(std::fwrite(text.data(), 1, text.size(), file));
    if (std::ferror(file) == 0 || errno == EINTR)
      continue;
    if (errno == EPIPE && file == stdout)
      throw ReaderHasGone();
    throw Failure("cannot write " + name + ": " + systemText(errno));
  }
}

} // namespace

FileWriter::FileWriter(std::FILE* file, std::string name) : file_(file), name_(std::move(name)) {
  std::setvbuf(file_, nullptr, _IONBF, 0); // there is a buffer here
}

void FileWriter::flush() {
  writeWhole(file_, name_, buffer_);
  buffer_.clear();
}

void writeToStandardOutput(std::string_view text) {
  std::setvbuf(stdout, nullptr, _IONBF, 0);
  writeWhole(stdout, "standard output", text);
}

} // namespace LagomareTools
