#pragma once

#include "tools/query/answer/AnswerSink.h"
#include "tools/system/Files.h"
#include <array>
#include <cstdint>
#include <filesystem>
#include <string_view>

namespace LagomareQuery {

/// Writes an answer to a file. Until commit() the first line of the file is an error line, so that the file is never a
/// shorter answer, even if this process is killed: the first bytes of the answer are kept in memory, and only the rest
/// is written.
class AnswerFile : public AnswerSink {
public:
  static constexpr std::string_view unfinishedLine = "error: the query did not finish .\n";

  /// Writes unfinishedLine to the file. An old file is overwritten in place, so that it is never missing; a link, or
  /// anything else than an ordinary file with one name, is replaced by a new file. Throws QueryError, as write() and
  /// commit() do, if the file cannot be written.
  explicit AnswerFile(std::filesystem::path path);

  void write(std::string_view bytes) override;

  /// Call it after the last row: makes the answer readable, in one step.
  void commit();

  /// Replaces the content by one error line with the reason, as far as the disk allows. Does not throw.
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
  std::uint64_t size_ = 0; // of the answer so far, in bytes, including those kept in memory
};

} // namespace LagomareQuery
