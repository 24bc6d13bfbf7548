#pragma once

#include "tools/system/PrivateDirectory.h"
#include <filesystem>
#include <optional>

namespace LagomareQuery {

/// A copy of a SQLite database with its -wal and -journal files in a directory of its own, under the system's directory
/// for temporary files; removed when this goes.
class PrivateCopy {
public:
  /// `database` is the file's real path, links resolved: its companions stand beside it. Throws QueryError.
  explicit PrivateCopy(const std::filesystem::path& database);

  [[nodiscard]] const std::filesystem::path& database() const { return copy_; }

  /// Removes the files now, as far as the system lets go of open ones, so that nothing stays behind if this process is
  /// killed; what is open can be read on.
  void removeFiles() noexcept { directory_.reset(); }

private:
  [[nodiscard]] bool copyFrom(const std::filesystem::path& database);

  std::optional<LagomareTools::PrivateDirectory> directory_;
  std::filesystem::path copy_;
};

} // namespace LagomareQuery
