#pragma once

#include "tools/query/OutputFile.h"
#include "tools/query/answer/AnswerSink.h"
#include <array>

namespace LagomareQuery {

/// An answer on its way to a file. From construction to commit() the file's first line is an error line, so that
/// whoever reads the file after this process was killed finds an error and not a shorter answer: the first bytes of the
/// answer are held back, the rest is written behind them.
class AnswerFile : public AnswerSink {
public:
  static constexpr std::string_view unfinishedLine = "error: the query did not finish .\n";

  /// Throws QueryError, as write() and commit() do, where the file cannot be written.
  explicit AnswerFile(std::string path);

  void write(std::string_view bytes) override;

  /// All rows are written: makes the answer readable, in one step.
  void commit();

  /// Makes the file hold one error line with the reason; without throwing, as far as the disk allows.
  void fail(std::string_view reason) noexcept;

private:
  OutputFile file_;
  std::array<char, unfinishedLine.size()> head_{};
  std::uint64_t size_ = 0; // of the answer so far, in bytes; those held back included
};

} // namespace LagomareQuery
