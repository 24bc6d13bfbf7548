#pragma once

#include <cstddef>

namespace LagomareQuery {

/// The layout of pages in one generation of the format. All offsets and sizes are in bytes.
struct AccessFormat {
  std::size_t pageSize;
  std::size_t pageRowCount; // in data pages; the table of slots follows it

  // Table definitions: offsets from the beginning of the first page.
  std::size_t rowCount;
  std::size_t endOfColumnNumbers; // the number of columns ever made, deleted ones included
  std::size_t variableColumnCount;
  std::size_t columnCount;
  std::size_t indexCount; // number of the indexes that have an entry before the columns
  std::size_t usageMap;
  std::size_t indexEntries;
  std::size_t indexEntrySize;

  // Columns in a table definition: offsets from the beginning of a column's entry.
  std::size_t columnEntrySize;
  std::size_t columnNumber;
  std::size_t variableIndex;
  std::size_t scale;
  std::size_t columnFlags;
  std::size_t fixedOffset;
  std::size_t columnSize;

  std::size_t countSize; // 1 or 2: size of counts in rows and of the length of a column's name
  bool utf16;            // text is in UTF-16, otherwise in code page 1252
};

/// Access 97.
inline constexpr AccessFormat jet3Format = {2048, 8, 12, 21, 23, 25, 31, 35, 43, 8, 18, 1, 3, 10, 13, 14, 16, 1, false};

/// Access 2000 and later, .accdb included.
inline constexpr AccessFormat jet4Format = {4096, 12, 16, 41, 43, 45, 51, 55, 63,  12,
                                            25,   5,  7,  12, 15, 21, 23, 2,  true};

} // namespace LagomareQuery
