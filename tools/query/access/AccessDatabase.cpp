#include "tools/query/access/AccessDatabase.h"

#include "tools/query/access/AccessModule.h"

#include <memory>
#include <utility>
#include <vector>

namespace LagomareQuery {

Database openAccessDatabase(const std::filesystem::path& file) {
  const auto stamp = LagomareTools::FileStamp::of(file);
  const auto pages = std::make_shared<AccessFile>(file);
  Connection connection = openConnection(":memory:", SQLITE_OPEN_READWRITE);
  const std::vector<AccessObject> objects = readCatalog(*pages);
  for (const AccessObject& object : objects)
    registerAccessTable(connection.get(), *pages, object);
  listTables(connection.get(), objects);
  prepareForQueries(connection.get());
  return {pages, std::move(connection), file, stamp, false};
}

} // namespace LagomareQuery
