#pragma once

#include "tools/export/Table.h"

#include <cstdint>
#include <string>

struct lxw_format;
struct lxw_worksheet;

namespace LagomareTools {

/// A head stands above texts or above numbers.
enum class CellStyle { plain, textHead, numberHead };

/// A sheet of a Workbook, which owns what it writes to. Written cell by cell: from the top, each row from the left.
class Sheet {
public:
  static constexpr std::size_t mostColumns = 16384;

  struct Formats {
    lxw_format* textHead;
    lxw_format* numberHead;
    lxw_format* month;
  };
  Sheet(lxw_worksheet* sheet, const Formats& formats) : sheet_(sheet), formats_(formats) {}

  /// A text stays a text whatever it begins with, and a number keeps all its digits. A row begins with a cell that is
  /// neither empty nor a real number, and after a real number only numbers and empty cells follow; std::logic_error
  /// otherwise. Throws Failure.
  void add(const Cell& cell, CellStyle style = CellStyle::plain);
  /// Makes the row that begins so many lines of text high.
  void setHeight(std::size_t lines);
  void endRow();

  /// Keeps rows at the top and columns at the left in sight.
  void freeze(std::uint32_t rows, std::size_t columns);
  /// Of columns from one to another, base 0, both included; each column once. In characters.
  void setWidth(std::size_t firstColumn, std::size_t lastColumn, double characters);
  /// Throws Failure if something could not be written.
  void finish();

private:
  struct Put;

  [[nodiscard]] lxw_format* formatOf(CellStyle style) const;

  lxw_worksheet* sheet_;
  Formats formats_;
  std::uint32_t row_ = 0;
  std::uint16_t column_ = 0;
  std::string numbers_; ///< the row's last cells, as they stand in the file
};

} // namespace LagomareTools
