#pragma once

#include "tools/query/access/AccessFile.h"
#include <vector>

namespace LagomareQuery {

/// What the database's catalogue lists under a name that SQL may ask for.
struct AccessObject {
  std::string name;
  bool linked; ///< a table that stands in another database
  bool system; ///< one of Access's own tables
  std::uint32_t definitionPage;
};

/// The tables in the catalogue, no two of one name. Throws QueryError.
[[nodiscard]] std::vector<AccessObject> readCatalog(const AccessFile& file);

} // namespace LagomareQuery
