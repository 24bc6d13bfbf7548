#include "tools/query/access/AccessFile.h"

#include "tools/query/QueryError.h"
#include "tools/query/access/AccessCipher.h"
#include "tools/query/access/AccessText.h"
#include <algorithm>
#include <limits>

namespace LagomareQuery {

void throwDamaged(const std::string& where) {
  throw QueryError("the Access database is damaged (" + where +
                   "); open it in Access and use Compact and Repair, or take it from a backup");
}

namespace {

// Offsets in the first page. From maskedOffset on the page is encoded with a key that is the same for all files.
constexpr std::size_t versionOffset = 0x14;
constexpr std::size_t maskedOffset = 0x18;
constexpr std::size_t codePageOffset = 0x3C;
constexpr std::size_t keyOffset = 0x3E;
constexpr std::size_t headerSize = 0x42;
constexpr std::uint32_t maskKey = 0x6B39DAC7;

enum : std::uint8_t { jet3Version = 0, jet4Version = 1, lastVersion = 6 };

std::array<std::uint8_t, headerSize> readHeader(std::istream& stream) {
  std::array<std::uint8_t, headerSize> header{};
  if (!stream.read(reinterpret_cast<char*>(header.data()), header.size()))
    throwDamaged("it ends within its first page");
  applyCipher(maskKey, header.data() + maskedOffset, header.size() - maskedOffset);
  return header;
}

void requireKnownVersion(std::uint8_t version) {
  if (version > lastVersion)
    throw QueryError("the Access database is damaged, or of a version later than 2019 (" + std::to_string(version) +
                     "); open it with Access and save it as .accdb, or as .mdb of 2000-2003");
}

void requireKnownCodePage(std::uint16_t codePage) {
  constexpr std::uint16_t windows1252 = 1252;
  if (codePage != windows1252)
    throw QueryError("the texts of this Access 97 database are in code page " + std::to_string(codePage) +
                     ", and only 1252 is known here; open it with Access and save it as .accdb, or as .mdb of "
                     "2000-2003");
}

} // namespace

AccessFile::AccessFile(const std::filesystem::path& file) : stream_(file, std::ios::binary) {
  const std::array<std::uint8_t, headerSize> header = readHeader(stream_);
  const AccessBytes bytes(header.data(), header.size());
  const std::uint8_t version = bytes.u8(versionOffset);
  requireKnownVersion(version);
  format_ = version == jet3Version ? &jet3Format : &jet4Format;
  key_ = bytes.u32(keyOffset);
  if (version > jet4Version && key_ != 0)
    throw QueryError("the Access database is encrypted; remove its password first");
  if (version == jet3Version)
    requireKnownCodePage(bytes.u16(codePageOffset));
  const std::uintmax_t pages = std::filesystem::file_size(file) / format_->pageSize;
  pageCount_ = static_cast<std::uint32_t>(std::min<std::uintmax_t>(pages, std::numeric_limits<std::uint32_t>::max()));
}

void AccessFile::read(std::uint32_t pageNumber, AccessPage& page) const {
  const std::size_t size = format_->pageSize;
  stream_.clear();
  stream_.seekg(static_cast<std::streamoff>(std::uint64_t{pageNumber} * size));
  if (pageNumber >= pageCount_ ||
      !stream_.read(reinterpret_cast<char*>(page.bytes_.data()), static_cast<std::streamsize>(size)))
    throwDamaged("page " + std::to_string(pageNumber) + " is missing");
  page.size_ = size;
  if (key_ != 0 && pageNumber != 0)
    applyCipher(key_ ^ pageNumber, page.bytes_.data(), size);
}

void AccessFile::appendText(AccessBytes stored, std::string& text) const {
  format_->utf16 ? appendUtf16(stored, text) : appendWindows1252(stored, text);
}

} // namespace LagomareQuery
