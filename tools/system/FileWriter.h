#pragma once

#include <cstdio>
#include <string>
#include <string_view>

namespace LagomareTools {

/// Writes text to an open file through a buffer. What is not flushed is lost.
class FileWriter {
public:
  /// Borrows the file; the name is for messages.
  FileWriter(std::FILE* file, std::string name);

  void write(std::string_view text) {
    buffer_ += text;
    if (buffer_.size() >= fullBuffer)
      flush();
  }
  /// Throws, as write() does, Failure if the file does not take it, ReaderHasGone and Interrupted.
  void flush();

private:
  static constexpr std::size_t fullBuffer = std::size_t{1} << 16U;

  std::FILE* file_;
  std::string name_;
  std::string buffer_;
};

} // namespace LagomareTools
