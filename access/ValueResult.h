#pragma once

#include "lagomare_export.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The values of one id, in the order of the file, as text that belongs to a ValueResult.
class LAGOMARE_EXPORT ValueColumn {
public:
  [[nodiscard]] std::size_t size() const { return texts_.size(); }
  /// The value of a row, from 0. Throws as numberAt does.
  [[nodiscard]] double numberAt(std::size_t row) const;

private:
  friend class ValueResult;

  std::uint32_t id_ = 0;
  std::vector<std::string_view> texts_; ///< without data where the row has no value
};

/// The answer to a query of an id and one value: what parseRows gives, for answers of millions of rows. The
/// text stays as it came, and values are converted when they are asked for.
class LAGOMARE_EXPORT ValueResult {
public:
  /// Reads the ids of all lines. Throws as parseRows does.
  explicit ValueResult(std::string text);

  [[nodiscard]] bool empty() const { return runs_.empty(); }

  /// Calls visit(id, values) for each id, in ascending order. The values are valid during the call.
  template <typename Visit>
  void forEachId(Visit visit) const {
    ValueColumn values;
    for (auto run = runs_.begin(); run != runs_.end();) {
      values.id_ = run->id;
      values.texts_.clear();
      for (; run != runs_.end() && run->id == values.id_; ++run)
        appendValues(*run, values);
      visit(values.id_, static_cast<const ValueColumn&>(values));
    }
  }

private:
  /// Lines that follow each other in the text and begin alike: with the same id, then a blank.
  struct Run {
    std::uint32_t id;
    std::size_t begin;
    std::size_t end;
    std::size_t valueOffset; ///< in each of the lines
  };

  void appendValues(const Run& run, ValueColumn& values) const;

  std::string text_;
  std::vector<Run> runs_; ///< by id, then in the order of the text
};
