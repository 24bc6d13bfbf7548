#include "access/Fields.h"

#include "access/FieldError.h"
#include "access/Numbers.h"

#include <optional>
#include <string_view>

namespace Lagomare {

namespace {

/// Nothing where column 0 is no id, as in rows that no answer held.
std::optional<std::uint32_t> idOf(const Row& row) {
  try {
    return toUnsigned(row.empty() ? std::string_view() : std::string_view(row.front()));
  } catch (const FieldError&) {
    return std::nullopt;
  }
}

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

} // namespace Lagomare
