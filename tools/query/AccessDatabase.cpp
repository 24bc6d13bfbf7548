#include "tools/query/AccessDatabase.h"

#include "tools/query/AccessModule.h"

namespace LagomareQuery {

Database openAccessDatabase(const std::filesystem::path& path) {
  const FileStamp stamp = FileStamp::of(path);
  const auto file = std::make_shared<AccessFile>(path);
  Connection connection = openConnection(":memory:", SQLITE_OPEN_READWRITE);
  prepareForQueries(connection.get());
  for (const AccessObject& object : readCatalog(*file))
    registerAccessTable(connection.get(), *file, object);
  return {file, std::move(connection), path, stamp};
}

} // namespace LagomareQuery
