#pragma once

#include "tools/system/FileWriter.h"
#include "tools/system/Files.h"

#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

namespace LagomareTools {

/// The place of a file that is removed when this object goes; empty if there is none.
struct TemporaryPlace {
  TemporaryPlace() = default;
  ~TemporaryPlace();
  TemporaryPlace(const TemporaryPlace&) = delete;
  TemporaryPlace& operator=(const TemporaryPlace&) = delete;

  std::filesystem::path path;
};

/// A file that is complete or as it was before: written beside its place, then renamed. A symbolic link is followed.
/// What is no ordinary file, such as a device or a pipe, is written directly, and so is standard output.
class OutputFile {
public:
  static constexpr const char* standardOutput = "-";

  /// Opens it for writing, so that as many faults as possible show before the work begins. Throws Failure.
  explicit OutputFile(const std::string& name);

  [[nodiscard]] FileWriter& writer() { return *writer_; }
  /// Where a library that opens files itself can write the content, in place of writer(): an empty file at first. Not
  /// for standard output.
  [[nodiscard]] const std::filesystem::path& path();
  /// All is written: puts it on the disk. Throws Failure.
  void finish();
  /// Puts a finished file into its place; does nothing if it is not finished. Throws Failure.
  void commit();
  /// Undoes commit(). On a file system without hard links the replaced file is lost.
  void restore() noexcept;

private:
  enum class Undo { nothing, remove, putOldBack };

  void openDirectly();
  void openBeside(std::filesystem::perms permissions);
  void checkRoom();
  [[noreturn]] void fail(std::error_code error) const;
  [[noreturn]] void failBySystem() const;

  std::string name_;            ///< as it was given, for messages
  std::filesystem::path place_; ///< where the file belongs
  TemporaryPlace temporary_;    ///< where it is written; empty if it is written directly
  TemporaryPlace replaced_;     ///< a second name of the old file, while it may be needed again
  FilePointer file_;
  std::optional<FileWriter> writer_;
  bool isFinished_ = false;
  Undo undo_ = Undo::nothing;
};

/// Resolves a file name to an absolute path and follows symbolic links. The file need not exist.
[[nodiscard]] std::filesystem::path resolved(const std::string& name);

} // namespace LagomareTools
