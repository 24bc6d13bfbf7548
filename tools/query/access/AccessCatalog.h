#pragma once

#include "tools/query/access/AccessFile.h"
#include <vector>

namespace LagomareQuery {

/// What the database's catalogue lists under a name that SQL may ask for.
struct AccessObject {
  std::string name;
  bool linked; ///< a table that stands in another database
  std::uint32_t definitionPage;
};

/// Throws QueryError.
[[nodiscard]] std::vector<AccessObject> readCatalog(const AccessFile& file);

} // namespace LagomareQuery
