#pragma once

#include "lagomare_export.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The values of one id, in the order of the answer. A value that cannot be read is no error before it is asked for.
class LAGOMARE_EXPORT ValueColumn {
public:
  explicit ValueColumn(std::uint32_t id) : id_(id) {}

  [[nodiscard]] std::size_t size() const { return numbers_.size(); }
  /// The value of a row, from 0. Throws as Lagomare::toDouble does, with the row's id and the column set; MissingField
  /// where the row has no value; std::out_of_range where there is no such row.
  [[nodiscard]] double numberAt(std::size_t row) const {
    return unread_.empty() ? numbers_.at(row) : checkedNumberAt(row);
  }

  /// Throws as numberAt does for the first value that it throws for.
  void requireNumbers() const {
    if (!unread_.empty())
      static_cast<void>(checkedNumberAt(unread_.begin()->first));
  }

  void reserve(std::size_t rows) { numbers_.reserve(rows); }
  void append(std::string_view text);
  void appendMissing();

private:
  [[nodiscard]] double checkedNumberAt(std::size_t row) const;

  std::uint32_t id_;
  std::vector<double> numbers_;
  std::map<std::size_t, std::optional<std::string>> unread_; ///< by row: what is no number, or nothing where it lacks
};
