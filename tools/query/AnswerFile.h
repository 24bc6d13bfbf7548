#pragma once

#include "tools/query/OutputFile.h"
#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace LagomareQuery {

/// The text with a blank for each line break and other control character, such as file names may hold.
[[nodiscard]] std::string inOneLine(std::string_view text);

/// The answer on its way to the reader. From construction to commit() the file's first line is an error line, so that
/// whoever reads it after this process was killed finds an error and not a shorter answer: the first bytes of the
/// answer are held back, the rest streams in behind them.
class AnswerFile {
public:
  static constexpr std::string_view unfinishedLine = "error: the query did not finish .\n";

  explicit AnswerFile(std::string path);

  /// Room for at least `bytes` (at most `largestRoom`) bytes; whatever is put there counts once taken() is told.
  [[nodiscard]] char* room(std::size_t bytes) {
    if (buffer_.size() - used_ < bytes)
      flush();
    return buffer_.data() + used_;
  }
  void taken(const char* end) { used_ = static_cast<std::size_t>(end - buffer_.data()); }
  static constexpr std::size_t largestRoom = std::size_t{128} * 1024;

  /// All rows are written: the answer becomes readable, in one step.
  void commit();

  /// Makes the file hold one error line with the reason; without throwing, as far as the disk allows.
  void fail(std::string_view reason) noexcept;

private:
  void flush();

  OutputFile file_;
  std::array<char, unfinishedLine.size()> head_{};
  std::vector<char> buffer_ = std::vector<char>(2 * largestRoom);
  std::size_t used_ = 0;
  std::uint64_t flushed_ = 0; // bytes of the answer that left the buffer, those held back included
};

} // namespace LagomareQuery
