#pragma once

#include "lagomare_export.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Lagomare {

/// The fields of one line of an answer, by column from 0: column 0 is the text of the row's id, and the
/// line's last field, which is no data, is gone.
using Row = std::vector<std::string>;

} // namespace Lagomare

/// An answer: the rows of each id, in the order of the file. The ids ascend.
class QueryResult : public std::map<std::uint32_t, std::vector<Lagomare::Row>> {
public:
  using map::map;

  /// The place in the answer, from 1, of the row with this index, from 0, among the rows of its id. Nothing where no
  /// answer held it.
  [[nodiscard]] LAGOMARE_EXPORT std::optional<std::size_t> numberOf(std::uint32_t id, std::size_t index) const;

  /// Says that the rows from this number on have this id. To be called with ascending numbers.
  void startRun(std::uint32_t id, std::size_t number) { runs_.emplace_back(id, number); }

private:
  std::vector<std::pair<std::uint32_t, std::size_t>> runs_; ///< ids with the number of their first row
};
