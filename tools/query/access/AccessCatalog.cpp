#include "tools/query/access/AccessCatalog.h"

#include "tools/query/access/AccessScan.h"
#include <algorithm>

namespace LagomareQuery {

namespace {

constexpr std::uint32_t catalogPage = 2;
constexpr std::uint32_t pageMask = 0x00FFFFFF; // of an object's id
enum : std::uint16_t { tableObject = 1, linkedByDriverObject = 4, linkedObject = 6 };

const AccessColumn& column(const AccessTable& table, const char* name, AccessType type) {
  const auto found = std::find_if(table.columns.begin(), table.columns.end(), [&](const AccessColumn& candidate) {
    return candidate.name == name && candidate.type == type;
  });
  if (found == table.columns.end())
    throwDamaged(std::string("the catalogue has no column ") + name);
  return *found;
}

} // namespace

std::vector<AccessObject> readCatalog(const AccessFile& file) {
  const AccessTable catalog = readTable(file, "MSysObjects", catalogPage);
  const AccessColumn& id = column(catalog, "Id", AccessType::integer32);
  const AccessColumn& type = column(catalog, "Type", AccessType::integer16);
  const AccessColumn& name = column(catalog, "Name", AccessType::text);
  std::vector<AccessObject> objects;
  for (AccessScan scan(file, catalog); scan.next();) {
    const AccessRecord& record = scan.record();
    if (record.isNull(id) || record.isNull(type) || record.isNull(name))
      continue;
    const std::uint16_t kind = record.cell(type).u16(0);
    if (kind != tableObject && kind != linkedByDriverObject && kind != linkedObject)
      continue;
    AccessObject object{{}, kind != tableObject, record.cell(id).u32(0) & pageMask};
    file.appendText(record.cell(name), object.name);
    objects.push_back(std::move(object));
  }
  return objects;
}

} // namespace LagomareQuery
