#include "tools/system/FileStamp.h"

#include <cstdint>
#include <filesystem>
#include <sys/stat.h>

namespace LagomareTools {

namespace {

std::int64_t nanoseconds(const timespec& time) { return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec; }

} // namespace

FileStamp FileStamp::of(const std::filesystem::path& file) {
  struct stat status {};
  if (::stat(file.c_str(), &status) != 0)
    return {};
  return {status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size), nanoseconds(status.st_mtim),
          nanoseconds(status.st_ctim)};
}

} // namespace LagomareTools
