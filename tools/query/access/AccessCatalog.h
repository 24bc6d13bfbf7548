#pragma once

#include "tools/query/access/AccessFile.h"
#include <cstdint>
#include <string>
#include <vector>

namespace LagomareQuery {

/// A table in the database's catalogue.
struct AccessObject {
  std::string name;
  bool isLinked = false; ///< the table itself is in another database
  bool isSystem = false; ///< one of Access's own tables
  std::uint32_t definitionPage = 0;
};

/// Returns the tables in the catalogue. No two have the same name or the same definition. Throws QueryError.
[[nodiscard]] std::vector<AccessObject> readCatalog(const AccessFile& file);

} // namespace LagomareQuery
