#pragma once

#include "tools/project/Inputs.h"

#include <exception>

namespace LagomareTools {

/// What an import was about when it failed.
struct ImportPlace {
  const Inputs& inputs;
  std::string plainDatabase; ///< the name that the query executable knows the project by
  Dialect dialect;
  bool isDialectFound; ///< the database was asked for it
};

/// An error of the import library for people: what, where (table, row, column), how to mend it. The channel's files
/// must still stand in the current directory, and the channel be open.
[[nodiscard]] std::string reportOf(const std::exception& error, const ImportPlace& place);

} // namespace LagomareTools
