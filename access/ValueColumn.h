#pragma once

#include "lagomare_export.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Lagomare {

/// The values of one id, in the order of the answer. A value that cannot be read is no error before it is asked for.
class LAGOMARE_EXPORT ValueColumn {
public:
  explicit ValueColumn(std::uint32_t id) : id_(id) {}

  [[nodiscard]] std::size_t size() const { return values_.size(); }
  /// The value of a row, from 0. Throws as toDouble does, with the row's id and number and the column set; MissingField
  /// where the row has no value; std::out_of_range where there is no such row.
  [[nodiscard]] double numberAt(std::size_t row) const {
    return unread_.empty() ? values_.at(row) : checkedNumberAt(row);
  }

  /// Throws as numberAt does for the first value that it throws for.
  void requireNumbers() const {
    if (!unread_.empty())
      static_cast<void>(checkedNumberAt(unread_.begin()->first));
  }

  void reserve(std::size_t rows) { values_.reserve(rows); }
  void append(double value) { values_.push_back(value); }
  /// A value that is no number, or nothing where its row lacks it; `number` is the row's place in the answer, from 1.
  void appendUnread(std::optional<std::string> text, std::size_t number);

private:
  struct Unread {
    std::optional<std::string> text;
    std::size_t number;
  };

  [[nodiscard]] double checkedNumberAt(std::size_t row) const;

  std::uint32_t id_;
  std::vector<double> values_;
  std::map<std::size_t, Unread> unread_; ///< by row, from 0
};

} // namespace Lagomare
