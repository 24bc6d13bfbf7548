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
  /// A large block seldom wakes the reader of a pipe, and a wake-up costs more than the copy of some thousand rows.
  static constexpr std::size_t blockSize = std::size_t{256} * 1024;

  AnswerSink& sink_;
  std::vector<char> buffer_; // small for the small answers, of which a project has many
  std::size_t used_ = 0;
};

} // namespace LagomareQuery
