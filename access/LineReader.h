#pragma once

#include "lagomare_export.h"

#include <cstring>
#include <istream>
#include <string_view>
#include <vector>

namespace Lagomare {

/// The lines of an answer, read block by block: a block stays in the processor's caches, a whole answer would not.
/// Lines end with a line feed, the last one may lack it; an empty line, or one that holds a carriage return alone,
/// is skipped.
class LAGOMARE_EXPORT LineReader {
public:
  static constexpr std::size_t usualBlockSize = std::size_t{1} << 16U; ///< bytes

  /// Reads from the stream's place to where it ends or fails; the stream must outlive the reader. A block has at least
  /// one byte; it grows where a line is longer.
  explicit LineReader(std::istream& answer, std::size_t blockSize = usualBlockSize);

  /// The next line, without its line feed; it stays valid until the next call. False where there is none.
  [[nodiscard]] bool next(std::string_view& line);

private:
  /// Puts more text behind what is not read yet. False where there is none.
  bool refill();

  std::istream& answer_;
  std::vector<char> block_;
  std::size_t begin_ = 0; ///< of the text in the block that is not read yet
  std::size_t end_ = 0;
};

inline bool LineReader::next(std::string_view& line) {
  do {
    const void* feed = nullptr;
    while ((feed = std::memchr(block_.data() + begin_, '\n', end_ - begin_)) == nullptr && refill()) {
    }
    if (begin_ == end_)
      return false;
    const char* const text = block_.data() + begin_;
    const std::size_t length =
        feed == nullptr ? end_ - begin_ : static_cast<std::size_t>(static_cast<const char*>(feed) - text);
    line = std::string_view(text, length);
    begin_ += length + (feed == nullptr ? 0U : 1U);
  } while (line.empty() || line == "\r");
  return true;
}

} // namespace Lagomare
