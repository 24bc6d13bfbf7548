#include "bench/AccessStandIn.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace LagomareBench {

namespace {

// Where things stand in the pages of Access 2000 and later.
constexpr std::size_t pageSize = 4096;
constexpr std::size_t ownerOffset = 4;
constexpr std::size_t freeSpaceOffset = 2;
constexpr std::size_t pageRowCountOffset = 12;
constexpr std::size_t slotsOffset = 14;
constexpr std::size_t tableRowCountOffset = 16;
constexpr std::size_t columnCountOffset = 45;
constexpr std::size_t usageMapOffset = 55; // a slot in the lowest byte, its page above
constexpr std::size_t bitmapOffset = 4;
constexpr std::size_t rowSize = 15; // column count, long integer, double, null mask
constexpr std::size_t integerOffset = 2;
constexpr std::size_t doubleOffset = 6;
constexpr unsigned rowsPerPage = 240;

class Pages {
public:
  explicit Pages(std::string bytes) : bytes_(std::move(bytes)) {}

  [[nodiscard]] std::size_t count() const { return bytes_.size() / pageSize; }
  [[nodiscard]] char* at(std::size_t page) { return &bytes_.at(page * pageSize); }
  std::size_t append() {
    bytes_.resize(bytes_.size() + pageSize);
    return count() - 1;
  }
  [[nodiscard]] const std::string& bytes() const { return bytes_; }

private:
  std::string bytes_;
};

template <typename T>
T get(const char* from) {
  T value{};
  std::memcpy(&value, from, sizeof value);
  return value;
}

template <typename T>
void put(char* to, T value) {
  std::memcpy(to, &value, sizeof value);
}

/// The definition of the one table of two columns that has a column EstHidr.
std::size_t findDefinition(Pages& pages) {
  constexpr std::string_view name("E\0s\0t\0H\0i\0d\0r\0", 14);
  for (std::size_t page = 0; page < pages.count(); ++page) {
    const char* const bytes = pages.at(page);
    if (bytes[0] == 2 && get<std::uint16_t>(bytes + columnCountOffset) == 2 &&
        std::string_view(bytes, pageSize).find(name) != std::string_view::npos)
      return page;
  }
  throw std::runtime_error("the Access sample lacks the table FrontEH");
}

std::string firstRowsPage(Pages& pages, std::size_t definition) {
  for (std::size_t page = 0; page < pages.count(); ++page)
    if (pages.at(page)[0] == 1 && get<std::uint32_t>(pages.at(page) + ownerOffset) == definition)
      return std::string(pages.at(page), pageSize);
  throw std::runtime_error("the Access sample has no rows of FrontEH");
}

/// Rows fill a page from its end.
void fillPage(char* page, const std::string& sample, unsigned firstRow, unsigned count) {
  const char* const sampleRow = sample.data() + get<std::uint16_t>(sample.data() + slotsOffset);
  std::memcpy(page, sample.data(), slotsOffset);
  put(page + pageRowCountOffset, static_cast<std::uint16_t>(count));
  put(page + freeSpaceOffset, static_cast<std::uint16_t>(pageSize - slotsOffset - count * (rowSize + 2)));
  for (unsigned slot = 0; slot < count; ++slot) {
    const std::size_t offset = pageSize - (slot + 1) * rowSize;
    put(page + slotsOffset + 2 * slot, static_cast<std::uint16_t>(offset));
    std::memcpy(page + offset, sampleRow, rowSize);
    put(page + offset + integerOffset, static_cast<std::int32_t>((firstRow + slot) % 5000 + 1));
    put(page + offset + doubleOffset, accessValue(firstRow + slot));
  }
}

/// Says that the table holds these pages: its map points to one page of bits, which the first pointer stands for.
void mapPages(Pages& pages, std::size_t definition, std::size_t firstPage, std::size_t lastPage) {
  const std::size_t bits = pages.append();
  pages.at(bits)[0] = 5;
  pages.at(bits)[1] = 1;
  for (std::size_t page = firstPage; page <= lastPage; ++page)
    pages.at(bits)[bitmapOffset + page / 8] |= static_cast<char>(1U << (page % 8));
  const auto place = get<std::uint32_t>(pages.at(definition) + usageMapOffset);
  char* const mapPage = pages.at(place >> 8U);
  const std::size_t slot = slotsOffset + 2 * (place & 0xFFU);
  char* const map = mapPage + get<std::uint16_t>(mapPage + slot);
  map[0] = 1;
  std::memset(map + 1, 0, 64);
  put(map + 1, static_cast<std::uint32_t>(bits));
}

} // namespace

double accessValue(unsigned row) { return static_cast<double>(row * 7919ULL % 9999991ULL) / 10000.0; }

void writeAccessStandIn(const std::string& sample, const std::string& file, unsigned rows) {
  std::ifstream in(sample, std::ios::binary);
  Pages pages(std::string(std::istreambuf_iterator<char>(in), {}));
  const std::size_t definition = findDefinition(pages);
  const std::string rowsPage = firstRowsPage(pages, definition);
  const std::size_t firstPage = pages.count();
  for (unsigned row = 0; row < rows; row += rowsPerPage)
    fillPage(pages.at(pages.append()), rowsPage, row + 1, std::min(rowsPerPage, rows - row));
  put(pages.at(definition) + tableRowCountOffset, std::uint32_t{rows});
  mapPages(pages, definition, firstPage, pages.count() - 1);
  std::ofstream(file, std::ios::binary) << pages.bytes();
}

} // namespace LagomareBench
