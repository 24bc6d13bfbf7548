#pragma once

#include "tools/query/answer/AnswerSink.h"
#include <cstddef>
#include <vector>

namespace LagomareQuery {

/// Collects the bytes of an answer and hands them to a sink in blocks. Bytes that are not flushed are lost.
class AnswerBuffer {
public:
  /// `sink` must outlive the buffer.
  explicit AnswerBuffer(AnswerSink& sink) : sink_(sink) {}

  /// Returns a buffer of at least `bytes` bytes. After writing to it, call taken() with the end of the data.
  [[nodiscard]] char* room(std::size_t bytes) {
    if (used_ >= blockSize)
      flush();
    if (bytes > buffer_.size() - used_)
      buffer_.resize(2 * (used_ + bytes));
    return buffer_.data() + used_;
  }
  void taken(const char* end) { used_ = static_cast<std::size_t>(end - buffer_.data()); }

  void flush() {
    if (used_ > 0) // an empty buffer has no address to write from
      sink_.write({buffer_.data(), used_});
    used_ = 0;
  }

private:
  /// In bytes. Large, because each block wakes the reader of a pipe, which takes time.
  static constexpr std::size_t blockSize = std::size_t{256} * 1024;

  AnswerSink& sink_;
  std::vector<char> buffer_; // begins small, as most answers are
  std::size_t used_ = 0;
};

} // namespace LagomareQuery
