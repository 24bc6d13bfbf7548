#pragma once

#include <cstddef>

namespace LagomareQuery {

/// Where things stand in the pages of one generation of the format; offsets and sizes in bytes.
struct AccessFormat {
  std::size_t pageSize;
  std::size_t pageRowCount; // of data pages; the rows' offsets follow it

  // Table definitions: from the beginning of their first page.
  std::size_t rowCount;
  std::size_t endOfColumnNumbers; // deleted columns counted
  std::size_t variableColumnCount;
  std::size_t columnCount;
  std::size_t indexCount; // of those that take an entry before the columns
  std::size_t usageMap;
  std::size_t indexEntries;
  std::size_t indexEntrySize;

  // A column in a table definition: from the beginning of its entry.
  std::size_t columnEntrySize;
  std::size_t columnNumber;
  std::size_t variableIndex;
  std::size_t scale;
  std::size_t columnFlags;
  std::size_t fixedOffset;
  std::size_t columnSize;

  std::size_t countSize; // of counts in rows and of a column name's length: 1 or 2
  bool utf16;            // text is UTF-16, else in code page 1252
};

/// Access 97.
inline constexpr AccessFormat jet3Format = {2048, 8, 12, 21, 23, 25, 31, 35, 43, 8, 18, 1, 3, 10, 13, 14, 16, 1, false};

/// Access 2000 and later, .accdb included.
inline constexpr AccessFormat jet4Format = {4096, 12, 16, 41, 43, 45, 51, 55, 63,  12,
                                            25,   5,  7,  12, 15, 21, 23, 2,  true};

} // namespace LagomareQuery
