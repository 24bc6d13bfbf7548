#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace LagomareTools {

/// Lists of numbers packed for the page's script, without loss; lists that are all alike are kept once.
///
/// Most series are decimal numbers with few digits. Such a list becomes whole numbers: value = (least + n) / 10^scale,
/// which gives back the very same double, with n in as few bytes as the largest needs. Any other list keeps its
/// doubles. The bytes are put in planes (all lowest bytes first, and so on), deflated, and written in base64.
class PackedNumbers {
public:
  struct Entry {
    std::size_t offset; ///< into text()
    std::size_t length; ///< of its base64
    std::size_t count;  ///< of its numbers
    unsigned width;     ///< bytes per number; 0 where all are `least`
    int scale;          ///< -1 where the numbers are doubles
    std::int64_t least;
  };

  /// Returns the index of the list's entry. Throws Failure where memory does not suffice for packing.
  std::size_t add(const std::vector<double>& values);

  [[nodiscard]] const std::vector<Entry>& entries() const { return entries_; }
  [[nodiscard]] const std::string& text() const { return text_; }

private:
  std::vector<Entry> entries_;
  std::unordered_map<std::string, std::size_t> known_; ///< index by what identifies a list
  std::string text_;
};

} // namespace LagomareTools
