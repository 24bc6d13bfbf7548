#include "access/FieldError.h"

#include <utility>

namespace Lagomare {

FieldError::FieldError(std::optional<std::string> text) : text_(std::move(text)) {}

FieldError::~FieldError() = default;

void FieldError::setPlace(std::optional<std::uint32_t> rowId, std::size_t column) {
  rowId_ = rowId;
  column_ = column;
}

InvalidField::InvalidField(const char* conversion, std::string text)
    : std::invalid_argument(conversion), FieldError(std::move(text)) {}

FieldOutOfRange::FieldOutOfRange(const char* conversion, std::string text)
    : std::out_of_range(conversion), FieldError(std::move(text)) {}

MissingField::MissingField(std::optional<std::uint32_t> rowId, std::size_t column)
    : std::out_of_range("a row of the id " + (rowId ? std::to_string(*rowId) : "?") + " has no column " +
                        std::to_string(column)),
      FieldError(std::nullopt) {
  setPlace(rowId, column);
}

} // namespace Lagomare
