#pragma once

#include <filesystem>

namespace LagomareTools {

/// A directory that only this user can read, under TMPDIR or the system's folder for temporary files. Removed with all
/// that it holds when this object goes.
class PrivateDirectory {
public:
  /// Throws Failure.
  PrivateDirectory();
  ~PrivateDirectory();
  PrivateDirectory(const PrivateDirectory&) = delete;
  PrivateDirectory& operator=(const PrivateDirectory&) = delete;

  /// Absolute.
  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

private:
  std::filesystem::path path_;
};

} // namespace LagomareTools
