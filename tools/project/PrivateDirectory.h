#pragma once

#include "tools/system/Leftover.h"

#include <filesystem>
#include <optional>

namespace LagomareTools {

/// A working directory that nobody else uses: made under TMPDIR (else /tmp), readable by its owner alone, and the
/// process's current directory for as long as this lives. Removed with all that it holds.
class PrivateDirectory {
public:
  /// Throws Failure.
  PrivateDirectory();
  ~PrivateDirectory();
  PrivateDirectory(const PrivateDirectory&) = delete;
  PrivateDirectory& operator=(const PrivateDirectory&) = delete;

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

private:
  std::filesystem::path path_;
  int previous_; ///< the directory that was current before, or -1 where it cannot be opened
  std::optional<Leftover> leftover_;
};

} // namespace LagomareTools
