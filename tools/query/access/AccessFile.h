#pragma once

#include "tools/query/access/AccessBytes.h"
#include "tools/query/access/AccessFormat.h"
#include <array>
#include <filesystem>
#include <memory>
#include <vector>

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

/// An Access file as pages, decoded where the file is encoded. This is all that is left to libmdb, with the text of
/// code pages: what the pages say is read with bounds by the classes beside this one, for libmdb trusts it. Not for use
/// by two threads.
class AccessFile {
public:
  /// Throws QueryError where the file is no Access database that can be read.
  explicit AccessFile(const std::filesystem::path& file);
  ~AccessFile();
  AccessFile(const AccessFile&) = delete;
  AccessFile& operator=(const AccessFile&) = delete;

  [[nodiscard]] const AccessFormat& format() const { return *format_; }

  /// Whole pages in the file; every walk along pages is bounded by it.
  [[nodiscard]] std::uint32_t pageCount() const { return pageCount_; }

  /// Throws QueryError where the file has no such page.
  void read(std::uint32_t pageNumber, AccessPage& page) const;

  /// Appends a text as it stands in a cell or a definition, turned into UTF-8.
  void appendText(AccessBytes stored, std::string& text) const;

private:
  struct Handle; // libmdb's
  std::unique_ptr<Handle> handle_;
  const AccessFormat* format_;
  std::uint32_t pageCount_;
};

} // namespace LagomareQuery
