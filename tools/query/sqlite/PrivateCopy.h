#pragma once

#include "tools/system/PrivateDirectory.h"
#include <filesystem>
#include <optional>

namespace LagomareQuery {

/// A copy of a SQLite database and its -wal and -journal files in a private directory. Removed with this object.
class PrivateCopy {
public:
  /// `database` must be a path without symbolic links: the -wal file is beside the file itself. Throws QueryError.
  explicit PrivateCopy(const std::filesystem::path& database);

  [[nodiscard]] const std::filesystem::path& database() const { return copy_; }

  /// Removes the files now, so that nothing is left behind if this process is killed. Open files can still be read. On
  /// a system that cannot remove open files, they are removed with this object.
  void removeFiles() noexcept;

private:
  [[nodiscard]] bool copyFrom(const std::filesystem::path& database);

  std::optional<LagomareTools::PrivateDirectory> directory_;
  std::filesystem::path copy_;
};

} // namespace LagomareQuery
