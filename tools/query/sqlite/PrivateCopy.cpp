#include "tools/query/sqlite/PrivateCopy.h"

#include "tools/query/QueryError.h"
#include "tools/system/Failure.h"
#include "tools/system/FileStamp.h"
#include <array>
#include <string>
#include <system_error>

namespace LagomareQuery {

namespace {

namespace fs = std::filesystem;
using LagomareTools::FileStamp;

constexpr std::array<const char*, 3> parts = {"", "-wal", "-journal"};

fs::path part(const fs::path& database, const char* suffix) { return fs::path(database) += suffix; }

constexpr const char* cannotCopy =
    "the database has changes in a -wal or -journal file, and no copy could be made to read them from (TMPDIR says "
    "where); make room there, or open and close the database once in the program that wrote it: ";

} // namespace

PrivateCopy::PrivateCopy(const fs::path& database) {
  try {
    copy_ = directory_.emplace().path() / "database";
    for (int attempt = 0; attempt < 3; ++attempt)
      if (copyFrom(database))
        return;
    throw QueryError("another program is writing to the database; close it there, then try again");
  } catch (const LagomareTools::Failure& error) {
    throw QueryError(std::string(cannotCopy) + error.what());
  } catch (const fs::filesystem_error& error) {
    throw QueryError(std::string(cannotCopy) + error.code().message());
  }
}

void PrivateCopy::removeFiles() noexcept {
  std::error_code ignored;
  fs::remove_all(directory_->path(), ignored);
}

/// Returns false if a file was changed meanwhile, so that the copies do not belong together.
bool PrivateCopy::copyFrom(const fs::path& database) {
  std::array<FileStamp, parts.size()> before;
  for (std::size_t i = 0; i < parts.size(); ++i)
    before[i] = FileStamp::of(part(database, parts[i]));
  for (const char* suffix : parts) {
    fs::remove(part(copy_, suffix));
    std::error_code impossible; // if the name is too long, there is no such file
    if (fs::exists(part(database, suffix), impossible))
      fs::copy_file(part(database, suffix), part(copy_, suffix));
  }
  for (std::size_t i = 0; i < parts.size(); ++i)
    if (!(before[i] == FileStamp::of(part(database, parts[i]))))
      return false;
  return true;
}

} // namespace LagomareQuery
