#pragma once

#include "tools/check/tables/Listing.h"
#include "tools/project/Dialect.h"
#include "tools/project/Fault.h"

#include <optional>
#include <string>
#include <vector>

namespace LagomareTools {

/// How many rows a table holds, and how many of them the import takes.
struct TableCount {
  std::string table;
  std::size_t rows = 0;
  std::size_t taken = 0;
};

/// How an import would end.
enum class Prospect { imported, failed, refused, invalid };

/// What a check found.
struct CheckResult {
  Dialect dialect;
  Prospect prospect = Prospect::imported;      ///< refused and invalid: the import says so by its status
  std::vector<Fault> faults;                   ///< errors first; those of one code together
  std::vector<TableCount> tables;              ///< those that could be read
  std::optional<std::vector<NotRead>> notRead; ///< nothing where the database cannot be listed

  [[nodiscard]] std::size_t count(Severity severity) const;
  /// Over all tables.
  [[nodiscard]] std::size_t numOfRowsNotTaken() const;
  [[nodiscard]] std::size_t numOfRowsTakenOtherwise() const;
};

} // namespace LagomareTools
