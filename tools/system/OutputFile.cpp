#include "tools/system/OutputFile.h"

#include "tools/system/Failure.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace LagomareTools {

namespace {

namespace fs = std::filesystem;

constexpr unsigned permissionBits = 07777;

/// What a new file may be, by the user's mask.
unsigned usualMode() {
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return 0666U & ~mask;
}

} // namespace

fs::path placeOf(const std::string& name) {
  constexpr int mostLinks = 40; // as the system allows
  std::error_code error;
  fs::path place = fs::absolute(name, error);
  for (int links = 0; links < mostLinks && fs::is_symlink(place, error); ++links)
    place = place.parent_path() / fs::read_symlink(place, error);
  return place;
}

OutputFile::OutputFile(const std::string& name) : name_(name) {
  if (name == standardOutput) {
    writer_.emplace(STDOUT_FILENO, "standard output");
    return;
  }
  place_ = placeOf(name);
  struct stat status {};
  const bool exists = ::stat(name.c_str(), &status) == 0;
  if (!exists && errno != ENOENT)
    fail(errno);
  if (exists ? S_ISDIR(status.st_mode) : !place_.has_filename())
    fail(EISDIR);
  if (exists && ::access(name.c_str(), W_OK) != 0)
    fail(errno);
  if (exists && !S_ISREG(status.st_mode))
    descriptor_ = ::open(name.c_str(), O_WRONLY | O_NOCTTY | O_CLOEXEC);
  else
    openBeside(exists ? status.st_mode & permissionBits : usualMode());
  if (descriptor_ < 0)
    fail(errno);
  writer_.emplace(descriptor_, name_);
}

OutputFile::~OutputFile() {
  if (descriptor_ >= 0)
    ::close(descriptor_);
}

void OutputFile::openBeside(unsigned mode) {
  temporary_ = (place_.parent_path() / ".lagomare-XXXXXX").string();
  descriptor_ = ::mkostemp(temporary_.data(), O_CLOEXEC);
  if (descriptor_ < 0)
    throw Failure("cannot write " + name_ + ": its folder takes no new file: " + systemText(errno));
  leftover_.emplace([file = temporary_] { ::unlink(file.c_str()); });
  checkRoom();
  if (::fchmod(descriptor_, mode) != 0)
    fail(errno);
}

/// A full disk takes a new file, but no block of it.
void OutputFile::checkRoom() {
  const std::string block(4096, '\0');
  const ssize_t written = ::write(descriptor_, block.data(), block.size());
  if (written != static_cast<ssize_t>(block.size()))
    fail(written < 0 ? errno : ENOSPC);
  if (::ftruncate(descriptor_, 0) != 0 || ::lseek(descriptor_, 0, SEEK_SET) != 0)
    fail(errno);
}

void OutputFile::finish() {
  writer_->flush();
  if (!temporary_.empty() && ::fsync(descriptor_) != 0)
    fail(errno);
  isFinished_ = true;
}

void OutputFile::commit() {
  if (!isFinished_ || temporary_.empty())
    return;
  replaced_ = temporary_ + '~';
  const bool isKept = ::link(place_.c_str(), replaced_.c_str()) == 0;
  const bool isNew = !isKept && errno == ENOENT;
  if (isKept)
    replacedLeftover_.emplace([file = replaced_] { ::unlink(file.c_str()); });
  if (std::rename(temporary_.c_str(), place_.c_str()) != 0)
    fail(errno);
  undo_ = isKept ? Undo::putOldBack : isNew ? Undo::remove : Undo::nothing;
  leftover_->keep();
}

void OutputFile::restore() noexcept {
  if (undo_ == Undo::remove)
    ::unlink(place_.c_str());
  else if (undo_ == Undo::putOldBack)
    static_cast<void>(std::rename(replaced_.c_str(), place_.c_str()) != 0); // nothing more can be done
  undo_ = Undo::nothing;
}

void OutputFile::fail(int error) const { throw Failure("cannot write " + name_ + ": " + systemText(error)); }

} // namespace LagomareTools
