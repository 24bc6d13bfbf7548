#pragma once

#include "model/Interval.h"
#include "tools/check/rules/TableRows.h"

#include <limits>
#include <optional>
#include <string>

namespace LagomareTools {

/// The months that the rows of a table of series stand for, and those that they say they are. A month is a number: 12 ×
/// year + month, from 0 for January; of a table of twelve months 0 to 11.
class Months {
public:
  /// Without an interval nothing is known of a table with a row per month of the period.
  Months(const TableRows& rows, const std::optional<Interval>& interval);

  /// How many rows a series needs; no limit where that is not known.
  [[nodiscard]] std::size_t numOfRows() const { return numOfRows_; }
  [[nodiscard]] bool isNumOfRowsKnown() const { return numOfRows_ != noLimit; }
  /// Whether the rows can be compared with the months that they stand for.
  [[nodiscard]] bool areKnown() const { return areKnown_; }
  /// The columns that tell the month are among those asked for.
  [[nodiscard]] bool areTold() const { return areTold_; }
  /// What row k of a series, from 0, stands for.
  [[nodiscard]] int expected(std::size_t k) const { return first_ + static_cast<int>(k); }
  /// What the current row says; nothing where it cannot be read.
  [[nodiscard]] std::optional<int> told() const;
  /// "2000-01", or "January".
  [[nodiscard]] std::string textOf(int month) const;
  /// A column that tells the month.
  [[nodiscard]] std::size_t column() const;

private:
  static constexpr std::size_t noLimit = std::numeric_limits<std::size_t>::max();

  const TableRows& rows_;
  std::size_t date_;
  std::size_t year_;
  std::size_t month_;
  bool isOfPeriod_;
  bool areTold_;
  bool areKnown_;
  std::size_t numOfRows_;
  int first_ = 0;
};

} // namespace LagomareTools
