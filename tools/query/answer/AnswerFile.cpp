#include "tools/query/answer/AnswerFile.h"

#include "tools/query/QueryError.h"
#include "tools/system/Failure.h"
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <exception>
#include <random>
#include <string>
#include <system_error>
#include <utility>

namespace LagomareQuery {

namespace {

namespace fs = std::filesystem;

LagomareTools::FilePointer openUnbuffered(const fs::path& path, const char* mode) {
  LagomareTools::FilePointer file = LagomareTools::openFile(path, mode);
  if (file)
    static_cast<void>(std::setvbuf(file.get(), nullptr, _IONBF, 0));
  return file;
}

} // namespace

AnswerFile::AnswerFile(fs::path path) : path_(std::move(path)) {
  if (openInPlace())
    begin();
  else
    replace();
}

/// Returns false also if there is something else than a file with only this name: through a link it could be somebody's
/// database.
bool AnswerFile::openInPlace() {
  std::error_code error;
  const fs::file_status status = fs::symlink_status(path_, error);
  if (!fs::exists(status))
    file_ = openUnbuffered(path_, "wbx");
  else if (fs::is_regular_file(status) && fs::hard_link_count(path_, error) == 1)
    file_ = openUnbuffered(path_, "r+b");
  return file_ != nullptr;
}

void AnswerFile::begin() {
  try {
    holdOnly(unfinishedLine);
  } catch (...) {
    // If the disk has no room for a single byte, the file is removed: an empty file would be an empty answer. If there
    // is an older answer, its first byte is overwritten.
    std::rewind(file_.get());
    if (std::fwrite(unfinishedLine.data(), 1, 1, file_.get()) != 1) {
      std::error_code ignored;
      fs::remove(path_, ignored);
    }
    throw;
  }
}

void AnswerFile::replace() {
  const fs::path newPath = fs::path(path_) += "." + std::to_string(std::random_device()());
  file_ = openUnbuffered(newPath, "wbx");
  if (!file_)
    throwError();
  try {
    append(unfinishedLine);
    fs::rename(newPath, path_);
  } catch (const std::exception&) {
    const int error = errno;
    std::error_code ignored;
    fs::remove(newPath, ignored);
    errno = error;
    throwError();
  }
}

void AnswerFile::write(std::string_view bytes) {
  const std::size_t missingHead = size_ < head_.size() ? head_.size() - size_ : 0;
  const std::size_t held = std::min(bytes.size(), missingHead);
  std::copy_n(bytes.data(), held, head_.data() + (head_.size() - missingHead));
  append(bytes.substr(held));
  size_ += bytes.size();
}

void AnswerFile::commit() {
  const std::size_t head = std::min<std::uint64_t>(size_, head_.size());
  // If the answer is shorter than the error line, the beginning of that line remains for a moment. It is no row either.
  if (size_ < head_.size())
    resize(size_);
  overwriteBegin(std::string_view(head_.data(), head));
  if (std::fclose(file_.release()) != 0) // some errors show only now
    throwError();
}

void AnswerFile::fail(std::string_view reason) noexcept {
  try {
    if (!file_ && !openInPlace())
      return;
    holdOnly("error: " + inOneLine(reason) + " .\n");
  } catch (...) {
    try {
      holdOnly(unfinishedLine); // fits into the room that the file already has
    } catch (...) {
    }
  }
}

/// Overwrites the beginning before it cuts off the rest, so that the first line is a row at no moment.
void AnswerFile::holdOnly(std::string_view line) {
  overwriteBegin(line);
  resize(line.size());
}

void AnswerFile::overwriteBegin(std::string_view bytes) {
  std::rewind(file_.get());
  append(bytes);
}

void AnswerFile::append(std::string_view bytes) {
  errno = 0;
  if (std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) != bytes.size())
    throwError();
}

void AnswerFile::resize(std::uint64_t size) {
  if (!LagomareTools::resize(file_.get(), size))
    throwError();
}

/// Takes the error from errno.
void AnswerFile::throwError() const {
  throw QueryError("'" + path_.u8string() + "' cannot be written in the working directory: " +
                   LagomareTools::systemText(errno) + "; make room for it, or start in a folder that you may write to");
}

} // namespace LagomareQuery
