#include "tools/system/Files.h"

#include <string>
#include <unistd.h>

namespace LagomareTools {

FilePointer openFile(const std::filesystem::path& file, const char* mode) {
  return FilePointer(std::fopen(file.c_str(), (std::string(mode) + 'e').c_str()));
}

bool flushToDisk(std::FILE* file) { return std::fflush(file) == 0 && ::fsync(::fileno(file)) == 0; }

} // namespace LagomareTools
