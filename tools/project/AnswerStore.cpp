#include "tools/project/AnswerStore.h"

#include "tools/system/Failure.h"

#include <algorithm>
#include <ios>
#include <system_error>

namespace LagomareTools {

void AnswerStore::keepIn(const std::filesystem::path& directory) {
  if (file_.is_open())
    return;
  const std::filesystem::path path = directory / "answers";
  file_.rdbuf()->pubsetbuf(nullptr, 0); // blocks come and go as they are
  file_.open(path, std::ios::in | std::ios::out | std::ios::trunc | std::ios::binary);
  std::error_code stillOpen;
  std::filesystem::remove(path, stillOpen);
}

void AnswerStore::begin(const std::string& sql) {
  isKeeping_ = file_.is_open();
  sql_ = sql;
  written_.size = 0;
  file_.seekp(static_cast<std::streamoff>(written_.begin));
}

void AnswerStore::add(std::string_view text) {
  if (!isKeeping_)
    return;
  file_.write(text.data(), static_cast<std::streamsize>(text.size()));
  written_.size += text.size();
  if (!file_) {
    answers_.clear();
    written_ = {};
    isKeeping_ = false;
    file_.close();
  }
}

void AnswerStore::complete() {
  if (!isKeeping_)
    return;
  answers_[sql_] = written_;
  written_.begin += written_.size;
}

bool AnswerStore::open(const std::string& sql) {
  const auto found = answers_.find(sql);
  if (found == answers_.end())
    return false;
  unread_ = found->second;
  file_.seekg(static_cast<std::streamoff>(unread_.begin));
  return true;
}

std::size_t AnswerStore::read(char* buffer, std::size_t size) {
  const std::size_t length = std::min<std::uint64_t>(size, unread_.size);
  if (!file_.read(buffer, static_cast<std::streamsize>(length)))
    throw Failure("a temporary file with rows of the project cannot be read any more; try again");
  unread_.size -= length;
  return length;
}

} // namespace LagomareTools
