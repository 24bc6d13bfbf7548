#include "bench/AccessStandIn.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string_view>
#include <utility>

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
constexpr std::size_t fixedOffset = 2; // in a row, behind its number of columns

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

/// A name as definitions hold it, between the lengths of its own and of the next one.
std::string utf16(const std::string& name) {
  std::string text;
  for (const char letter : name)
    text.append({letter, '\0'});
  return text;
}

bool defines(const char* page, const std::vector<std::string>& columns) {
  if (page[0] != 2 || get<std::uint16_t>(page + columnCountOffset) != columns.size())
    return false;
  const std::string_view bytes(page, pageSize);
  return std::all_of(columns.begin(), columns.end(),
                     [bytes](const auto& name) { return bytes.find(utf16(name)) != std::string_view::npos; });
}

std::size_t findDefinition(Pages& pages, const std::vector<std::string>& columns) {
  for (std::size_t page = 0; page < pages.count(); ++page)
    if (defines(pages.at(page), columns))
      return page;
  throw std::runtime_error("the Access sample lacks the table of " + columns.front());
}

std::string firstRowsPage(Pages& pages, std::size_t definition) {
  for (std::size_t page = 0; page < pages.count(); ++page)
    if (pages.at(page)[0] == 1 && get<std::uint32_t>(pages.at(page) + ownerOffset) == definition)
      return std::string(pages.at(page), pageSize);
  throw std::runtime_error("the Access sample has no rows of the table");
}

/// Rows fill a page from its end.
void fillPage(char* page, const std::string& header, const std::string& row, unsigned count) {
  std::memcpy(page, header.data(), slotsOffset);
  put(page + pageRowCountOffset, static_cast<std::uint16_t>(count));
  put(page + freeSpaceOffset, static_cast<std::uint16_t>(pageSize - slotsOffset - count * (row.size() + 2)));
  for (unsigned slot = 0; slot < count; ++slot) {
    const std::size_t offset = pageSize - (slot + 1) * row.size();
    put(page + slotsOffset + 2 * slot, static_cast<std::uint16_t>(offset));
    std::memcpy(page + offset, row.data(), row.size());
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

void replaceRows(Pages& pages, const AccessRows& table) {
  const std::size_t definition = findDefinition(pages, table.columns);
  const std::string sample = firstRowsPage(pages, definition);
  const std::string row = sample.substr(get<std::uint16_t>(sample.data() + slotsOffset));
  const auto rowsPerPage = static_cast<unsigned>((pageSize - slotsOffset) / (row.size() + 2));
  const std::size_t firstPage = pages.count();
  for (unsigned done = 0; done < table.count; done += rowsPerPage) {
    const unsigned count = std::min(rowsPerPage, table.count - done);
    char* const page = pages.at(pages.append());
    fillPage(page, sample, row, count);
    for (unsigned slot = 0; slot < count; ++slot)
      table.fill(page + pageSize - (slot + 1) * row.size() + fixedOffset, done + slot + 1);
  }
  put(pages.at(definition) + tableRowCountOffset, std::uint32_t{table.count});
  mapPages(pages, definition, firstPage, pages.count() - 1);
}

} // namespace

void writeAccessStandIn(const std::string& sample, const std::string& file, const std::vector<AccessRows>& tables) {
  std::ifstream in(sample, std::ios::binary);
  Pages pages(std::string(std::istreambuf_iterator<char>(in), {}));
  for (const AccessRows& table : tables)
    replaceRows(pages, table);
  std::ofstream(file, std::ios::binary) << pages.bytes();
}

} // namespace LagomareBench
