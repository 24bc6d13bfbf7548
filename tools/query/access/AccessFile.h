#pragma once

#include "tools/query/access/AccessBytes.h"
#include "tools/query/access/AccessFormat.h"
#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

namespace LagomareQuery {

/// One page of an Access file. AccessBytes that point into it are valid as long as the page is kept unchanged.
class AccessPage {
public:
  enum class Kind : std::uint8_t { data = 1, tableDefinition = 2, usageMap = 5 };

  [[nodiscard]] AccessBytes bytes() const { return {bytes_.data(), size_}; }
  [[nodiscard]] bool is(Kind kind) const { return bytes_[0] == static_cast<std::uint8_t>(kind); }

private:
  friend class AccessFile;
  alignas(8) std::array<std::uint8_t, 4096> bytes_{};
  std::size_t size_ = 0;
};

/// Reads the pages of an Access file, and decodes them if the file is encoded. Not for use by two threads.
class AccessFile {
public:
  /// Throws QueryError if the file is not an Access database, or is one that cannot be read here.
  explicit AccessFile(const std::filesystem::path& file);

  [[nodiscard]] const AccessFormat& format() const { return *format_; }

  /// The number of complete pages in the file. Loops over pages must not exceed it.
  [[nodiscard]] std::uint32_t pageCount() const { return pageCount_; }

  /// Throws QueryError if the file has no such page.
  void read(std::uint32_t pageNumber, AccessPage& page) const;

  /// Appends a text from a cell or a definition, converted to UTF-8.
  void appendText(AccessBytes stored, std::string& text) const;

private:
  mutable std::ifstream stream_;
  const AccessFormat* format_ = nullptr;
  std::uint32_t pageCount_ = 0;
  std::uint32_t key_ = 0; // 0 if the file is not encoded; the key of a page is key_ ^ its number
};

} // namespace LagomareQuery
