#include "tools/system/OutputFile.h"

#include "tools/system/Failure.h"

#include <cerrno>
#include <cstdio>
#include <random>

namespace LagomareTools {

namespace fs = std::filesystem;

fs::path resolved(const std::string& name) {
  constexpr int mostLinks = 40;
  std::error_code error;
  fs::path path = fs::absolute(fs::u8path(name), error);
  for (int links = 0; links < mostLinks && fs::is_symlink(path, error); ++links)
    path = path.parent_path() / fs::read_symlink(path, error);
  return path;
}

TemporaryPlace::~TemporaryPlace() {
  std::error_code ignored;
  if (!path.empty())
    fs::remove(path, ignored);
}

OutputFile::OutputFile(const std::string& name) : name_(name) {
  if (name == standardOutput) {
    writer_.emplace(stdout, "standard output");
    return;
  }
  place_ = resolved(name);
  std::error_code error;
  const fs::file_status status = fs::status(fs::u8path(name), error);
  if (status.type() == fs::file_type::none)
    fail(error);
  if (fs::is_directory(status) || !place_.has_filename())
    fail(std::make_error_code(std::errc::is_a_directory));
  if (fs::exists(status) && !fs::is_regular_file(status)) {
    place_ = fs::u8path(name); // a link such as /dev/stdout may name a pipe, which has no path of its own
    openDirectly();
  } else if (!fs::exists(status))
    openBeside(fs::perms::unknown);
  else if (openFile(place_, "r+b") != nullptr) // it may be written to
    openBeside(status.permissions());
  else
    failBySystem();
}

void OutputFile::openDirectly() {
  file_ = openFile(place_, "wb");
  if (file_ == nullptr)
    failBySystem();
  writer_.emplace(file_.get(), name_);
}

/// `permissions` are those of the file to replace, or unknown.
void OutputFile::openBeside(fs::perms permissions) {
  std::random_device random;
  do {
    temporary_.path = place_.parent_path() / (".lagomare-" + std::to_string(random()));
    file_ = openFile(temporary_.path, "wbx"); // with the permissions that new files of this user have
  } while (file_ == nullptr && errno == EEXIST);
  if (file_ == nullptr) {
    temporary_.path.clear();
    throw Failure("cannot write " + name_ + ": its folder takes no new file: " + systemText(errno));
  }
  std::error_code error;
  if (permissions != fs::perms::unknown)
    fs::permissions(temporary_.path, permissions, error);
  if (error)
    fail(error);
  writer_.emplace(file_.get(), name_);
  checkRoom();
}

/// A full disk takes a new file, but no block of it.
void OutputFile::checkRoom() {
  const std::string block(4096, '\0');
  if (std::fwrite(block.data(), 1, block.size(), file_.get()) != block.size() || std::fflush(file_.get()) != 0)
    failBySystem();
  std::error_code error;
  fs::resize_file(temporary_.path, 0, error);
  if (error)
    fail(error);
  std::rewind(file_.get());
}

const fs::path& OutputFile::path() {
  if (temporary_.path.empty())
    return place_;
  writer_.reset(); // some systems let only one writer open a file
  file_.reset();
  return temporary_.path;
}

void OutputFile::finish() {
  if (writer_)
    writer_->flush();
  if (!temporary_.path.empty()) {
    if (file_ == nullptr)
      file_ = openFile(temporary_.path, "r+b");
    if (file_ == nullptr || !flushToDisk(file_.get()))
      failBySystem();
  }
  writer_.reset();
  file_.reset();
  isFinished_ = true;
}

void OutputFile::commit() {
  if (!isFinished_ || temporary_.path.empty())
    return;
  replaced_.path = temporary_.path;
  replaced_.path += "~";
  std::error_code error;
  fs::create_hard_link(place_, replaced_.path, error);
  const bool isKept = !error;
  const bool isNew = error == std::errc::no_such_file_or_directory;
  fs::rename(temporary_.path, place_, error);
  if (error)
    fail(error);
  temporary_.path.clear();
  undo_ = isKept ? Undo::putOldBack : isNew ? Undo::remove : Undo::nothing;
}

void OutputFile::restore() noexcept {
  std::error_code ignored; // nothing more can be done
  if (undo_ == Undo::remove)
    fs::remove(place_, ignored);
  else if (undo_ == Undo::putOldBack)
    fs::rename(replaced_.path, place_, ignored);
  undo_ = Undo::nothing;
}

void OutputFile::fail(std::error_code error) const { throw Failure("cannot write " + name_ + ": " + error.message()); }

void OutputFile::failBySystem() const { fail({errno, std::generic_category()}); }

} // namespace LagomareTools
