#include "tools/system/Files.h"

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>
#include <unistd.h>

namespace LagomareTools {

FilePointer openFile(const std::filesystem::path& file, const char* mode) {
  return FilePointer(std::fopen(file.c_str(), (std::string(mode) + 'e').c_str()));
}

bool resize(std::FILE* file, std::uint64_t size) { return ::ftruncate(::fileno(file), static_cast<off_t>(size)) == 0; }

bool flushToDisk(std::FILE* file) { return std::fflush(file) == 0 && ::fsync(::fileno(file)) == 0; }

} // namespace LagomareTools
