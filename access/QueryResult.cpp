#include "access/QueryResult.h"

std::optional<std::size_t> QueryResult::numberOf(std::uint32_t id, std::size_t index) const {
  for (auto run = runs_.begin(); run != runs_.end(); ++run) {
    if (run->first != id)
      continue;
    const auto next = run + 1;
    const std::size_t length = next == runs_.end() ? index + 1 : next->second - run->second;
    if (index < length)
      return run->second + index;
    index -= length;
  }
  return std::nullopt;
}
