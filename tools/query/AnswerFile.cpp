#include "tools/query/AnswerFile.h"

#include <algorithm>

namespace LagomareQuery {

std::string inOneLine(std::string_view text) {
  std::string line(text);
  std::replace_if(
      line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
  return line;
}

AnswerFile::AnswerFile(std::string path) : file_(std::move(path), unfinishedLine) {}

void AnswerFile::flush() {
  const std::size_t missingHead = flushed_ < head_.size() ? head_.size() - flushed_ : 0;
  const std::size_t held = std::min(used_, missingHead);
  std::copy_n(buffer_.data(), held, head_.data() + (head_.size() - missingHead));
  file_.writeAt(flushed_ + held, std::string_view(buffer_.data() + held, used_ - held));
  flushed_ += used_;
  used_ = 0;
}

void AnswerFile::commit() {
  flush();
  const std::size_t head = std::min<std::uint64_t>(flushed_, head_.size());
  // A shorter answer: the error line's beginning, which is no row either, until the answer's bytes cover it.
  if (flushed_ < head_.size())
    file_.truncate(flushed_);
  file_.writeAt(0, std::string_view(head_.data(), head));
  file_.close();
}

void AnswerFile::fail(std::string_view reason) noexcept {
  // The line goes over the head before the tail is cut off: at no moment is the first line a row.
  const auto overwrite = [this](std::string_view line) {
    file_.writeAt(0, line);
    file_.truncate(line.size());
  };
  try {
    overwrite("error: " + inOneLine(reason) + " .\n");
  } catch (...) {
    try {
      overwrite(unfinishedLine); // needs no more room on the disk than the file has
    } catch (...) {
    }
  }
}

} // namespace LagomareQuery
