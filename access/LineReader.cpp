#include "access/LineReader.h"

#include <algorithm>
#include <cstddef>

namespace Lagomare {

LineReader::LineReader(std::istream& answer, std::size_t blockSize) : answer_(answer), block_(blockSize) {}

bool LineReader::refill() {
  std::copy(block_.begin() + static_cast<std::ptrdiff_t>(begin_), block_.begin() + static_cast<std::ptrdiff_t>(end_),
            block_.begin());
  end_ -= begin_;
  begin_ = 0;
  if (end_ == block_.size()) // a line that is longer than the block
    block_.resize(2 * block_.size());
  answer_.read(&block_[end_], static_cast<std::streamsize>(block_.size() - end_));
  const auto got = static_cast<std::size_t>(answer_.gcount());
  end_ += got;
  return got > 0;
}

} // namespace Lagomare
