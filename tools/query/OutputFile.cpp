#include "tools/query/OutputFile.h"

#include "tools/query/QueryError.h"
#include <cerrno>
#include <fcntl.h>
#include <system_error>
#ifdef _WIN32
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#else
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace LagomareQuery {

namespace {

// The system's calls, alike on both platforms: -1 on failure, with errno.
#ifdef _WIN32

int openOrdinary(const std::string& path) {
  int descriptor = -1;
  _sopen_s(&descriptor, path.c_str(), _O_WRONLY | _O_CREAT | _O_BINARY | _O_NOINHERIT, _SH_DENYNO,
           _S_IREAD | _S_IWRITE);
  return descriptor;
}
long long writeSome(int descriptor, std::string_view bytes, std::uint64_t offset) {
  if (_lseeki64(descriptor, static_cast<long long>(offset), SEEK_SET) < 0)
    return -1;
  return _write(descriptor, bytes.data(), static_cast<unsigned>(bytes.size()));
}
int setSize(int descriptor, std::uint64_t size) {
  return _chsize_s(descriptor, static_cast<long long>(size)) == 0 ? 0 : -1;
}
int closeFile(int descriptor) { return _close(descriptor); }
int openReplacement(std::string&) { return -1; } // links are rare there: the error of the first try stands
int moveOver(const std::string&, const std::string&) { return -1; }
void removeFile(const std::string& path) { _unlink(path.c_str()); }

#else

/// A descriptor above those of the standard streams: started with standard error closed, the program would otherwise
/// print its messages into the answer.
int aboveStandardStreams(int descriptor) {
  if (descriptor < 0 || descriptor > STDERR_FILENO)
    return descriptor;
  const int moved = fcntl(descriptor, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
  ::close(descriptor);
  return moved;
}

/// -1 also for what is there but is no file of this name alone: a link's other name may be somebody's database.
int openOrdinary(const std::string& path) {
  const int flags = O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
  const int descriptor = aboveStandardStreams(::open(path.c_str(), flags, 0666));
  struct stat status {};
  if (descriptor < 0 || ::fstat(descriptor, &status) != 0)
    return descriptor;
  if (S_ISREG(status.st_mode) && status.st_nlink == 1)
    return descriptor;
  ::close(descriptor);
  return -1;
}
long long writeSome(int descriptor, std::string_view bytes, std::uint64_t offset) {
  return ::pwrite(descriptor, bytes.data(), bytes.size(), static_cast<off_t>(offset));
}
int setSize(int descriptor, std::uint64_t size) { return ::ftruncate(descriptor, static_cast<off_t>(size)); }
int closeFile(int descriptor) { return ::close(descriptor); }
int openReplacement(std::string& path) {
  path += ".XXXXXX";
  const int descriptor = aboveStandardStreams(::mkstemp(path.data()));
  if (descriptor >= 0)
    ::fchmod(descriptor, 0644);
  return descriptor;
}
int moveOver(const std::string& from, const std::string& to) { return ::rename(from.c_str(), to.c_str()); }
void removeFile(const std::string& path) { ::unlink(path.c_str()); }

#endif

} // namespace

OutputFile::OutputFile(std::string path, std::string_view content) : path_(std::move(path)) {
  descriptor_ = openOrdinary(path_);
  if (descriptor_ < 0)
    replace(content);
  else
    rewrite(content);
}

OutputFile::~OutputFile() {
  if (descriptor_ >= 0)
    closeFile(descriptor_);
}

void OutputFile::rewrite(std::string_view content) {
  try {
    writeAt(0, content);
    truncate(content.size());
  } catch (...) {
    // Not even one byte on a full disk: an empty file would pass for an empty answer. Where bytes of an older
    // answer are left, the first of them are overwritten.
    if (writeSome(descriptor_, content.substr(0, 1), 0) != 1)
      removeFile(path_);
    closeFile(descriptor_);
    throw;
  }
}

void OutputFile::replace(std::string_view content) {
  std::string newPath = path_;
  descriptor_ = openReplacement(newPath);
  if (descriptor_ < 0)
    fail(errno);
  const bool written = writeSome(descriptor_, content, 0) == static_cast<long long>(content.size());
  if (written && moveOver(newPath, path_) == 0)
    return;
  const int error = errno;
  removeFile(newPath);
  closeFile(descriptor_);
  fail(error);
}

void OutputFile::writeAt(std::uint64_t offset, std::string_view bytes) {
  if (descriptor_ < 0 && (descriptor_ = openOrdinary(path_)) < 0)
    fail(errno);
  while (!bytes.empty()) {
    const long long written = writeSome(descriptor_, bytes, offset);
    if (written < 0 && errno == EINTR)
      continue;
    if (written <= 0)
      fail(written < 0 ? errno : ENOSPC);
    offset += static_cast<std::uint64_t>(written);
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

void OutputFile::truncate(std::uint64_t size) {
  if (setSize(descriptor_, size) != 0)
    fail(errno);
}

void OutputFile::close() {
  const int descriptor = descriptor_;
  descriptor_ = -1;
  if (closeFile(descriptor) != 0)
    fail(errno);
}

void OutputFile::fail(int error) const {
  throw QueryError("'" + path_ +
                   "' cannot be written in the working directory: " + std::generic_category().message(error) +
                   "; make room for it, or start in a folder that you may write to");
}

} // namespace LagomareQuery
