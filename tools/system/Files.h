#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>

namespace LagomareTools {

struct FileCloser {
  void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};
using FilePointer = std::unique_ptr<std::FILE, FileCloser>;

/// Opens a file as std::fopen does; programs started later do not see it. Null with errno if it cannot.
[[nodiscard]] FilePointer openFile(const std::filesystem::path& file, const char* mode);

/// Cuts or extends an open file without a buffer. False with errno if it cannot.
[[nodiscard]] bool resize(std::FILE* file, std::uint64_t size);

/// Puts a written file on the disk. False with errno if it cannot.
[[nodiscard]] bool flushToDisk(std::FILE* file);

} // namespace LagomareTools
