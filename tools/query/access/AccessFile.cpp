#include "tools/query/access/AccessFile.h"

#include "tools/query/QueryError.h"
#include "tools/query/access/AccessText.h"
#include <glib.h> // before mdbtools.h, which relies on it
#include <mdbtools.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <limits>

namespace LagomareQuery {

void throwDamaged(const std::string& where) {
  throw QueryError("the Access database is damaged (" + where +
                   "); open it in Access and use Compact and Repair, or take it from a backup");
}

namespace {

constexpr std::size_t versionOffset = 0x14;
constexpr int lastVersion = MDB_VER_ACCDB_2019;

void forgetVariable(const char* name) {
#ifdef _WIN32
  _putenv_s(name, "");
#else
  unsetenv(name);
#endif
}

/// Version of the format; libmdb, which would only print what is wrong, is asked afterwards.
int versionOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  stream.seekg(versionOffset);
  const int version = stream.get();
  if (version < 0 || version > lastVersion)
    throw QueryError("the Access database is damaged, or of a version later than 2019 (" + std::to_string(version) +
                     "); open it with Access and save it as .accdb, or as .mdb of 2000-2003");
  return version;
}

/// libmdb leaves texts unreadable, and says nothing, where it does not know how they are encoded.
void requireKnownCharacterSet(const AccessFile& file) {
  const std::uint8_t letter = 'A';
  std::string text;
  file.appendText({&letter, sizeof letter}, text);
  if (text != "A")
    throw QueryError("the character set of the database's texts is unknown here; set MDB_JET3_CHARSET to one that is "
                     "known, like CP1252");
}

} // namespace

struct AccessFile::Handle {
  explicit Handle(MdbHandle* opened) : mdb(opened) {}
  ~Handle() { mdb_close(mdb); }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  MdbHandle* mdb;
};

AccessFile::AccessFile(const std::filesystem::path& file)
    : format_(versionOf(file) == MDB_VER_JET3 ? &jet3Format : &jet4Format) {
  const std::uintmax_t pages = std::filesystem::file_size(file) / format_->pageSize;
  pageCount_ = static_cast<std::uint32_t>(std::min<std::uintmax_t>(pages, std::numeric_limits<std::uint32_t>::max()));
  if (pageCount_ == 0)
    throwDamaged("it ends within its first page");
  for (const char* name : {"MDBICONV", "MDBOPTS", "MDBPATH"}) // would change what libmdb does
    forgetVariable(name);
  MdbHandle* mdb = mdb_open(file.string().c_str(), MDB_NOFLAGS);
  if (mdb == nullptr)
    throwDamaged("its first page");
  handle_ = std::make_unique<Handle>(mdb);
  if (mdb->f->jet_version > MDB_VER_JET4 && mdb->f->db_key != 0)
    throw QueryError("the Access database is encrypted; remove its password first");
  if (!format_->utf16)
    requireKnownCharacterSet(*this);
}

AccessFile::~AccessFile() = default;

void AccessFile::read(std::uint32_t pageNumber, AccessPage& page) const {
  MdbHandle* mdb = handle_->mdb;
  if (pageNumber >= pageCount_ || mdb_read_pg(mdb, pageNumber) != static_cast<ssize_t>(format_->pageSize))
    throwDamaged("page " + std::to_string(pageNumber) + " is missing");
  page.size_ = format_->pageSize;
  std::copy_n(mdb->pg_buf, page.size_, page.bytes_.begin());
}

void AccessFile::appendText(AccessBytes stored, std::string& text) const {
  if (format_->utf16)
    return appendUtf16(stored, text);
  constexpr std::size_t longestCharacter = 4; // bytes in UTF-8
  const std::size_t room = stored.size() * longestCharacter + 1;
  const std::size_t before = text.size();
  text.resize(before + room);
  const int length = mdb_unicode2ascii(handle_->mdb, reinterpret_cast<const char*>(stored.data()), stored.size(),
                                       text.data() + before, room);
  text.resize(before + static_cast<std::size_t>(std::max(length, 0)));
}

} // namespace LagomareQuery
