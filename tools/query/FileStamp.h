#pragma once

#include <cstdint>
#include <filesystem>

namespace LagomareQuery {

/// What tells whether a file was changed: its size and its time of last writing; a missing file counts as empty.
struct FileStamp {
  std::uintmax_t size = 0; // bytes
  std::filesystem::file_time_type written;

  [[nodiscard]] static FileStamp of(const std::filesystem::path& file) {
    std::error_code missing;
    const std::uintmax_t size = std::filesystem::file_size(file, missing);
    if (missing)
      return {};
    return {size, std::filesystem::last_write_time(file, missing)};
  }
  [[nodiscard]] bool operator==(const FileStamp& other) const { return size == other.size && written == other.written; }
};

} // namespace LagomareQuery
