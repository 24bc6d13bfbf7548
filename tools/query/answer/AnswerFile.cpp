#include "tools/query/answer/AnswerFile.h"

#include <algorithm>

namespace LagomareQuery {

AnswerFile::AnswerFile(std::string path) : file_(std::move(path), unfinishedLine) {}

void AnswerFile::write(std::string_view bytes) {
  const std::size_t missingHead = size_ < head_.size() ? head_.size() - size_ : 0;
  const std::size_t held = std::min(bytes.size(), missingHead);
  std::copy_n(bytes.data(), held, head_.data() + (head_.size() - missingHead));
  file_.writeAt(size_ + held, bytes.substr(held));
  size_ += bytes.size();
}

void AnswerFile::commit() {
  const std::size_t head = std::min<std::uint64_t>(size_, head_.size());
  // Of a shorter answer, what stays until its bytes cover it is the error line's beginning, which is no row either.
  if (size_ < head_.size())
    file_.truncate(size_);
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
