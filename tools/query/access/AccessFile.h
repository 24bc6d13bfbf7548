#pragma once

#include "tools/query/access/AccessBytes.h"
#include "tools/query/access/AccessFormat.h"
#include <array>
#include <filesystem>
#include <fstream>

namespace LagomareQuery {

/// One page of an Access file; its owner keeps it while what points into it is in use.
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

/// An Access file as pages, decoded where the file is encoded. Not for use by two threads.
class AccessFile {
public:
  /// Throws QueryError where the file is no Access database that can be read.
  explicit AccessFile(const std::filesystem::path& file);

  [[nodiscard]] const AccessFormat& format() const { return *format_; }

  /// Whole pages in the file; every walk along pages is bounded by it.
  [[nodiscard]] std::uint32_t pageCount() const { return pageCount_; }

  /// Throws QueryError where the file has no such page.
  void read(std::uint32_t pageNumber, AccessPage& page) const;

  /// Appends a text as it stands in a cell or a definition, turned into UTF-8.
  void appendText(AccessBytes stored, std::string& text) const;

private:
  mutable std::ifstream stream_;
  const AccessFormat* format_ = nullptr;
  std::uint32_t pageCount_ = 0;
  std::uint32_t key_ = 0; // of an encoded file: each page's key is this one exclusive-or its number; 0: not encoded
};

} // namespace LagomareQuery
