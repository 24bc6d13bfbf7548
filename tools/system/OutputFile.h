#pragma once

#include "tools/system/FileWriter.h"
#include "tools/system/Leftover.h"

#include <filesystem>
#include <optional>

namespace LagomareTools {

/// A file that is complete or as it was before: written beside its place, renamed into it. A link is followed to the
/// file it names; what is no ordinary file, such as a device or a pipe, is written directly, and so is standard output.
class OutputFile {
public:
  static constexpr const char* standardOutput = "-";

  /// Opens it for writing, so that what can be known to hinder that is known now. Throws Failure.
  explicit OutputFile(const std::string& name);
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  [[nodiscard]] FileWriter& writer() { return *writer_; }
  /// Where a library that opens files itself can write the content, in place of writer(): an empty file at first. Not
  /// for standard output.
  [[nodiscard]] std::filesystem::path path() const {
    return temporary_.empty() ? place_ : std::filesystem::path(temporary_);
  }
  /// All is written: puts it on the disk. Throws Failure.
  void finish();
  /// Puts the finished file into its place; nothing where it was not finished. Throws Failure.
  void commit();
  /// Undoes a commit. Where the file system knows no hard links, what a file has replaced is lost.
  void restore() noexcept;

private:
  enum class Undo { nothing, remove, putOldBack };

  void openBeside(unsigned mode);
  void checkRoom();
  [[noreturn]] void fail(int error) const;

  std::string name_;            ///< as it was given, for messages
  std::filesystem::path place_; ///< where the file belongs
  std::string temporary_;       ///< where it is written; empty where it is written directly
  int descriptor_ = -1;
  bool isFinished_ = false;
  Undo undo_ = Undo::nothing;
  std::optional<FileWriter> writer_;
  std::optional<Leftover> leftover_;
  std::string replaced_; ///< a second name of the file that was there, while it may be needed again
  std::optional<Leftover> replacedLeftover_;
};

/// Where a file of that name stands, or would: absolute, links followed, also one to what does not exist.
[[nodiscard]] std::filesystem::path placeOf(const std::string& name);

} // namespace LagomareTools
