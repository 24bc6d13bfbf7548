#include "tools/export/Sheet.h"

#include "tools/export/NumberText.h"
#include "tools/system/Failure.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <stdexcept>
#include <string_view>
#include <variant>
#include <xlsxwriter.h>

namespace LagomareTools {

namespace {

constexpr std::string_view endOfRow = "</row>";

void require(lxw_error error) {
  if (error != LXW_NO_ERROR)
    throw Failure(std::string("cannot write the workbook: ") + lxw_strerror(error));
}

void requireWritten(bool isWritten) {
  if (!isWritten)
    throw Failure("cannot write the workbook's temporary file: " + systemText(errno));
}

/// Spreadsheet programs disagree about the days before: the first of them took 1900 for a leap year.
bool isSheetDate(const Date& date) { return Date(1900, 2, 28) < date; }

} // namespace

/// Writes a cell that is not empty at the sheet's row and column.
struct Sheet::Put {
  Sheet& sheet;
  lxw_format* format;

  void operator()(std::monostate) const { requireBegun(); }
  void operator()(std::int64_t value) const {
    if (sheet.numbers_.empty())
      require(worksheet_write_number(place(), sheet.row_, sheet.column_, static_cast<double>(value), format));
    else
      addNumber(std::to_string(value));
  }
  /// The library writes 16 digits, and a double needs 17.
  void operator()(double value) const { addNumber(NumberText(value).view()); }
  void operator()(bool value) const {
    require(worksheet_write_boolean(place(), sheet.row_, sheet.column_, value ? 1 : 0, format));
  }
  void operator()(const Date& value) const {
    if (!isSheetDate(value))
      return operator()(isoDate(value));
    lxw_datetime date{static_cast<int>(value.getYear()), value.getMonth(), value.getDay(), 0, 0, 0.0};
    require(worksheet_write_datetime(place(), sheet.row_, sheet.column_, &date, sheet.formats_.month));
  }
  void operator()(const std::string& value) const {
    require(worksheet_write_string(place(), sheet.row_, sheet.column_, value.c_str(), format));
  }

private:
  void requireBegun() const {
    if (sheet.column_ == 0)
      throw std::logic_error("Sheet: a row begins with an empty cell or a real number");
  }
  [[nodiscard]] lxw_worksheet* place() const {
    if (!sheet.numbers_.empty())
      throw std::logic_error("Sheet: a cell that is no number follows a real number");
    return sheet.sheet_;
  }
  void addNumber(std::string_view digits) const {
    requireBegun();
    std::array<char, LXW_MAX_CELL_NAME_LENGTH> name{};
    lxw_rowcol_to_cell(name.data(), sheet.row_, sheet.column_);
    sheet.numbers_.append("<c r=\"").append(name.data()).append("\"><v>").append(digits).append("</v></c>");
  }
};

void Sheet::add(const Cell& cell, CellStyle style) {
  std::visit(Put{*this, formatOf(style)}, cell);
  ++column_;
}

lxw_format* Sheet::formatOf(CellStyle style) const {
  if (style == CellStyle::plain)
    return nullptr;
  return style == CellStyle::textHead ? formats_.textHead : formats_.numberHead;
}

void Sheet::setHeight(std::size_t lines) {
  require(worksheet_set_row(sheet_, row_, LXW_DEF_ROW_HEIGHT * static_cast<double>(lines), nullptr));
}

void Sheet::endRow() {
  if (!numbers_.empty()) {
    // Has the library write the row's other cells to the sheet's temporary file, then adds to that row.
    lxw_worksheet_write_single_row(sheet_);
    requireWritten(std::fseek(sheet_->file, -static_cast<long>(endOfRow.size()), SEEK_CUR) == 0 &&
                   std::fputs(numbers_.append(endOfRow).c_str(), sheet_->file) >= 0);
    numbers_.clear();
  }
  ++row_;
  column_ = 0;
}

void Sheet::freeze(std::uint32_t rows, std::size_t columns) {
  worksheet_freeze_panes(sheet_, rows, static_cast<lxw_col_t>(columns));
}

void Sheet::setWidth(std::size_t firstColumn, std::size_t lastColumn, double characters) {
  require(worksheet_set_column(sheet_, static_cast<lxw_col_t>(firstColumn), static_cast<lxw_col_t>(lastColumn),
                               characters, nullptr));
}

void Sheet::finish() { requireWritten(std::fflush(sheet_->file) == 0 && std::ferror(sheet_->file) == 0); }

} // namespace LagomareTools
