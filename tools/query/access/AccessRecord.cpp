#include "tools/query/access/AccessRecord.h"

#include <string>

namespace LagomareQuery {

namespace {

std::size_t count(AccessBytes bytes, std::size_t offset, const AccessFormat& format) {
  return format.countSize == 1 ? bytes.u8(offset) : bytes.u16(offset);
}

/// Returns `size` - `parts`. Throws if the parts are larger.
std::size_t before(std::size_t size, std::size_t parts) {
  if (parts > size)
    throwDamaged("a row that is shorter than its parts");
  return size - parts;
}

} // namespace

AccessRecord::AccessRecord(AccessBytes row, const AccessTable& table, const AccessFormat& format)
    : row_(row), format_(&format), columnCount_(count(row, 0, format)),
      dataEnd_(before(row.size(), (columnCount_ + 7) / 8)) {
  if (columnCount_ == 0 || columnCount_ >= table.shapes.size())
    throwDamaged("a row of table " + table.name + " that has " + std::to_string(columnCount_) + " columns");
  const AccessRowShape& shape = table.shapes[columnCount_];
  std::size_t fixedEnd = dataEnd_;
  bool fits = true;
  if (table.hasVariableColumns) {
    const std::size_t offsets = findVariableCells();
    // Access can leave unused bytes after the last cell when a row has become shorter.
    fits = variableCount_ <= shape.mostVariableCells && variableOffset(variableCount_) <= offsets;
    fixedEnd = variableOffset(0);
  }
  if (!fits || fixedEnd < shape.leastFixedEnd || fixedEnd > shape.mostFixedEnd)
    throwDamaged("a row of table " + table.name + " that does not fit the table's columns");
}

std::size_t AccessRecord::findVariableCells() {
  const std::size_t countOffset = before(dataEnd_, format_->countSize);
  variableCount_ = count(row_, countOffset, *format_);
  offsetsEnd_ = countOffset;
  if (!format_->utf16) { // Access 97: the jump table is between the offsets and their count
    jumpCount_ = (row_.size() - 1) / 256;
    jumpsEnd_ = countOffset;
    offsetsEnd_ = before(countOffset, jumpCount_);
  }
  const std::size_t offsets = before(offsetsEnd_, (variableCount_ + 1) * format_->countSize);
  // The last jump can be for the offsets themselves and then has no meaning.
  if (jumpCount_ > 0 && offsets / 256 < jumpCount_)
    --jumpCount_;
  return offsets;
}

std::size_t AccessRecord::variableOffset(std::size_t index) const {
  const std::size_t offset = count(row_, offsetsEnd_ - (index + 1) * format_->countSize, *format_);
  std::size_t jumps = 0;
  while (jumps < jumpCount_ && row_.u8(jumpsEnd_ - 1 - jumps) <= index)
    ++jumps;
  return offset + 256 * jumps;
}

AccessBytes AccessRecord::cell(const AccessColumn& column) const {
  if (column.fixed) {
    const std::size_t offset = format_->countSize + column.fixedOffset;
    const std::size_t size = fixedSize(column);
    return row_.part(offset, size <= before(dataEnd_, offset) ? size : row_.size());
  }
  if (column.variableIndex >= variableCount_)
    throwDamaged("a row without a cell of column " + column.name);
  const std::size_t begin = variableOffset(column.variableIndex);
  const std::size_t end = variableOffset(column.variableIndex + std::size_t{1});
  if (begin > end || end > dataEnd_)
    throwDamaged("a cell that ends outside its row");
  return row_.part(begin, end - begin);
}

} // namespace LagomareQuery
