#pragma once

#include "lagomare_export.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>

namespace Lagomare {

/// What a field of an answer could not be read as, for whoever wants to say where. Thrown only as one of the
/// classes below, each of which is also a standard exception; what() is that exception's text.
class LAGOMARE_EXPORT FieldError {
public:
  virtual ~FieldError();

  /// The field as the query executable wrote it; nothing where the row has no such field.
  [[nodiscard]] const std::optional<std::string>& text() const { return text_; }
  /// The key of the field's row, where known.
  [[nodiscard]] const std::optional<std::uint32_t>& rowId() const { return rowId_; }
  /// The index of the field in its row, from 0, where known.
  [[nodiscard]] const std::optional<std::size_t>& column() const { return column_; }

  /// The place of the row in the answer, from 1, where known. Empty lines do not count.
  [[nodiscard]] const std::optional<std::size_t>& row() const { return row_; }

  void setPlace(std::optional<std::uint32_t> rowId, std::size_t column);
  void setRow(std::optional<std::size_t> number) { row_ = number; }

protected:
  explicit FieldError(std::optional<std::string> text);
  FieldError(const FieldError&) = default;
  FieldError& operator=(const FieldError&) = default;

private:
  std::optional<std::string> text_;
  std::optional<std::uint32_t> rowId_;
  std::optional<std::size_t> column_;
  std::optional<std::size_t> row_;
};

/// The field holds no number: what() is "stoul" for ids, flags and codes, "stod" for values.
class LAGOMARE_EXPORT InvalidField : public std::invalid_argument, public FieldError {
public:
  InvalidField(const char* conversion, std::string text);
};

/// The field holds a number that does not fit: what() as above.
class LAGOMARE_EXPORT FieldOutOfRange : public std::out_of_range, public FieldError {
public:
  FieldOutOfRange(const char* conversion, std::string text);
};

/// The row is too short: what() names the row's id and the column.
class LAGOMARE_EXPORT MissingField : public std::out_of_range, public FieldError {
public:
  MissingField(std::optional<std::uint32_t> rowId, std::size_t column);
};

} // namespace Lagomare
