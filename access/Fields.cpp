#include "access/Fields.h"

#include "access/FieldError.h"
#include "access/Numbers.h"

namespace {

/// Rows come from an answer whose keys were read, so column 0 converts.
std::uint32_t idOf(const Row& row) { return row.empty() ? 0U : toUnsigned(row.front()); }

template <typename Conversion>
auto convertAt(const Row& row, std::size_t column, Conversion convert) {
  const std::string& text = textAt(row, column);
  try {
    return convert(text);
  } catch (FieldError& error) {
    error.setPlace(idOf(row), column);
    throw;
  }
}

} // namespace

const std::string& textAt(const Row& row, std::size_t column) {
  if (column >= row.size())
    throw MissingField(idOf(row), column);
  return row[column];
}

std::uint32_t unsignedAt(const Row& row, std::size_t column) { return convertAt(row, column, toUnsigned); }

double numberAt(const Row& row, std::size_t column) { return convertAt(row, column, toDouble); }

std::int32_t truncatedIntAt(const Row& row, std::size_t column) { return convertAt(row, column, toTruncatedInt); }

std::uint32_t truncatedUnsignedAt(const Row& row, std::size_t column) {
  return convertAt(row, column, toTruncatedUnsigned);
}
