#pragma once

#include <string>
#include <string_view>

namespace LagomareTools {

/// Writes text to an open file through a buffer. What is not flushed is lost.
class FileWriter {
public:
  /// Borrows the descriptor; the name is for messages.
  FileWriter(int descriptor, std::string name);

  void write(std::string_view text) {
    buffer_ += text;
    if (buffer_.size() >= fullBuffer)
      flush();
  }
  /// Throws Failure, as write does, where the file does not take it.
  void flush();

private:
  static constexpr std::size_t fullBuffer = std::size_t{1} << 16U;

  int descriptor_;
  std::string name_;
  std::string buffer_;
};

} // namespace LagomareTools
