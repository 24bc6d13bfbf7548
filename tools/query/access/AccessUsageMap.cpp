#include "tools/query/access/AccessUsageMap.h"

#include <string>
#include <utility>

namespace LagomareQuery {

namespace {

class PageCollector {
public:
  explicit PageCollector(const AccessFile& file) : pageCount_(file.pageCount()) {}

  void addBitmap(AccessBytes bitmap, std::uint64_t firstPage) {
    for (std::size_t i = 0; i < bitmap.size(); ++i) {
      unsigned bits = bitmap.u8(i);
      for (unsigned bit = 0; bits != 0; ++bit, bits >>= 1)
        if ((bits & 1) != 0)
          add(firstPage + 8 * i + bit);
    }
  }
  [[nodiscard]] std::vector<std::uint32_t> take() { return std::move(pages_); }

private:
  void add(std::uint64_t page) {
    if (page >= pageCount_)
      throwDamaged("it was cut: page " + std::to_string(page) + " is missing");
    pages_.push_back(static_cast<std::uint32_t>(page));
  }

  std::uint64_t pageCount_;
  std::vector<std::uint32_t> pages_;
};

/// The map lists pages of bits. Each such page stands for the next pages of the file.
void addPagesOfBits(const AccessFile& file, AccessBytes list, PageCollector& pages) {
  constexpr std::size_t header = 4;
  const std::uint64_t pagesPerMap = (file.format().pageSize - header) * 8;
  AccessPage page;
  for (std::size_t i = 0; 4 * i + 4 <= list.size(); ++i) {
    const std::uint32_t mapPage = list.u32(4 * i);
    if (mapPage == 0 || i * pagesPerMap >= file.pageCount())
      continue;
    file.read(mapPage, page);
    if (!page.is(AccessPage::Kind::usageMap))
      throwDamaged("page " + std::to_string(mapPage) + " should say which pages are in use");
    pages.addBitmap(page.bytes().from(header), i * pagesPerMap);
  }
}

} // namespace

std::vector<std::uint32_t> pagesOf(const AccessFile& file, AccessRowId map) {
  enum : std::uint8_t { bitsInPlace = 0, bitsOnPages = 1 };
  AccessPage page;
  const AccessBytes bytes = readRow(file, map, page);
  PageCollector pages(file);
  if (bytes.u8(0) == bitsInPlace)
    pages.addBitmap(bytes.from(5), bytes.u32(1));
  else if (bytes.u8(0) == bitsOnPages)
    addPagesOfBits(file, bytes.from(1), pages);
  else
    throwDamaged("a list of pages of an unknown kind");
  return pages.take();
}

} // namespace LagomareQuery
