#pragma once

#include "tools/query/answer/AnswerSink.h"
#include "tools/system/Files.h"
#include <array>
#include <cstdint>
#include <filesystem>

namespace LagomareQuery {

/// An answer on its way to a file. From construction to commit() the file's first line is an error line, so that
/// whoever reads the file after this process was killed finds an error and not a shorter answer: the first bytes of the
/// answer are held back, the rest is written behind them.
class AnswerFile : public AnswerSink {
public:
  static constexpr std::string_view unfinishedLine = "error: the query did not finish .\n";

  /// Makes the file hold unfinishedLine and nothing else. It is overwritten in place, so that it is never missing; a
  /// link, or whatever else is no ordinary file with one name, is replaced by a new file. Throws QueryError, as write()
  /// and commit() do, if the file cannot be written.
  explicit AnswerFile(std::filesystem::path path);

  void write(std::string_view bytes) override;

  /// All rows are written: makes the answer readable, in one step.
  void commit();

  /// Makes the file hold one error line with the reason; without throwing, as far as the disk allows.
  void fail(std::string_view reason) noexcept;

private:
  [[nodiscard]] bool openInPlace();
  void begin();
  void replace();
  void append(std::string_view bytes);
  void overwriteBegin(std::string_view bytes);
  void holdOnly(std::string_view line);
  void resize(std::uint64_t size);
  [[noreturn]] void throwError() const;

  std::filesystem::path path_;
  LagomareTools::FilePointer file_;
  std::array<char, unfinishedLine.size()> head_{};
  std::uint64_t size_ = 0; // of the answer so far, in bytes; those held back included
};

} // namespace LagomareQuery
