#pragma once

#include <cstdint>
#include <filesystem>

namespace LagomareTools {

/// What tells whether a file was changed or replaced. A missing file has the default stamp.
struct FileStamp {
  std::uint64_t device = 0;
  std::uint64_t number = 0; ///< of the file on its device
  std::uint64_t size = 0;   ///< bytes
  std::int64_t written = 0; ///< nanoseconds, time of the last writing
  std::int64_t changed = 0; ///< nanoseconds, time of the last change of any kind, which no program can set back

  /// Follows symbolic links.
  [[nodiscard]] static FileStamp of(const std::filesystem::path& file);
  [[nodiscard]] bool operator==(const FileStamp& other) const {
    return device == other.device && number == other.number && size == other.size && written == other.written &&
           changed == other.changed;
  }
};

} // namespace LagomareTools
