#pragma once

#include <filesystem>

namespace LagomareQuery {

/// A copy of a SQLite database with its -wal and -journal files in a directory of its own, under the system's directory
/// for temporary files; removed when this goes.
class PrivateCopy {
public:
  /// `database` is the file's real path, links resolved: its companions stand beside it. Throws QueryError.
  explicit PrivateCopy(const std::filesystem::path& database);
  ~PrivateCopy();
  PrivateCopy(const PrivateCopy&) = delete;
  PrivateCopy& operator=(const PrivateCopy&) = delete;

  [[nodiscard]] const std::filesystem::path& database() const { return copy_; }

  /// Removes the files now, as far as the system lets go of open ones, so that nothing stays behind if this process is
  /// killed; what is open can be read on.
  void removeFiles() noexcept;

private:
  [[nodiscard]] bool copyFrom(const std::filesystem::path& database);

  std::filesystem::path directory_;
  std::filesystem::path copy_;
};

} // namespace LagomareQuery
