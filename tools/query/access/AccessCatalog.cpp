#include "tools/query/access/AccessCatalog.h"

#include "tools/query/access/AccessScan.h"
#include <algorithm>
#include <sqlite3.h>

namespace LagomareQuery {

namespace {

constexpr std::uint32_t catalogPage = 2;
constexpr std::uint32_t pageMask = 0x00FFFFFF; // of an object's id
constexpr std::uint32_t systemFlags = 0x80000002;
enum : std::uint16_t { tableObject = 1, linkedByDriverObject = 4, linkedObject = 6 };

const AccessColumn& column(const AccessTable& table, const char* name, AccessType type) {
  const auto found = std::find_if(table.columns.begin(), table.columns.end(), [&](const AccessColumn& candidate) {
    return candidate.name == name && candidate.type == type;
  });
  if (found == table.columns.end())
    throwDamaged(std::string("the catalogue has no column ") + name);
  return *found;
}

void requireDifferentNames(const std::vector<AccessObject>& objects) {
  std::vector<std::string> names;
  for (const AccessObject& object : objects)
    names.push_back(object.name);
  const auto compare = [](const auto& left, const auto& right) { return sqlite3_stricmp(left.c_str(), right.c_str()); };
  std::sort(names.begin(), names.end(), [&](const auto& left, const auto& right) { return compare(left, right) < 0; });
  const auto twin = std::adjacent_find(names.begin(), names.end(),
                                       [&](const auto& left, const auto& right) { return compare(left, right) == 0; });
  if (twin != names.end())
    throwDamaged("two tables of the name " + *twin);
}

} // namespace

std::vector<AccessObject> readCatalog(const AccessFile& file) {
  const AccessTable catalog = readTable(file, "MSysObjects", catalogPage);
  const AccessColumn& id = column(catalog, "Id", AccessType::integer32);
  const AccessColumn& type = column(catalog, "Type", AccessType::integer16);
  const AccessColumn& name = column(catalog, "Name", AccessType::text);
  const AccessColumn& flags = column(catalog, "Flags", AccessType::integer32);
  std::vector<AccessObject> objects;
  const std::vector<std::uint32_t> pages = readDataPages(file, catalog);
  for (AccessScan scan(file, catalog, pages); scan.next();) {
    const AccessRecord& record = scan.record();
    if (record.isNull(id) || record.isNull(type) || record.isNull(name))
      continue;
    const std::uint16_t kind = record.cell(type).u16(0);
    if (kind != tableObject && kind != linkedByDriverObject && kind != linkedObject)
      continue;
    const bool system = !record.isNull(flags) && (record.cell(flags).u32(0) & systemFlags) != 0;
    AccessObject object{{}, kind != tableObject, system, record.cell(id).u32(0) & pageMask};
    file.appendText(record.cell(name), object.name);
    objects.push_back(std::move(object));
  }
  requireDifferentNames(objects);
  return objects;
}

} // namespace LagomareQuery
