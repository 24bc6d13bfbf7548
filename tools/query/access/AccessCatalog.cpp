#include "tools/query/access/AccessCatalog.h"

#include "tools/query/access/AccessScan.h"
#include <algorithm>
#include <optional>
#include <set>
#include <sqlite3.h>
#include <utility>

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

/// Reads the rows of the catalogue.
class CatalogRow {
public:
  explicit CatalogRow(const AccessTable& catalog)
      : id_(column(catalog, "Id", AccessType::integer32)), type_(column(catalog, "Type", AccessType::integer16)),
        name_(column(catalog, "Name", AccessType::text)), flags_(column(catalog, "Flags", AccessType::integer32)) {}

  /// Returns nothing if the row is about something else than a table.
  [[nodiscard]] std::optional<AccessObject> read(const AccessFile& file, const AccessRecord& row) const {
    if (row.isNull(id_) || row.isNull(type_) || row.isNull(name_))
      return std::nullopt;
    const std::uint16_t kind = row.cell(type_).u16(0);
    if (kind != tableObject && kind != linkedByDriverObject && kind != linkedObject)
      return std::nullopt;
    AccessObject object;
    object.isLinked = kind != tableObject;
    object.isSystem = !row.isNull(flags_) && (row.cell(flags_).u32(0) & systemFlags) != 0;
    object.definitionPage = row.cell(id_).u32(0) & pageMask;
    file.appendText(row.cell(name_), object.name);
    return object;
  }

private:
  const AccessColumn& id_;
  const AccessColumn& type_;
  const AccessColumn& name_;
  const AccessColumn& flags_;
};

struct LessIgnoringCase {
  bool operator()(const std::string& left, const std::string& right) const {
    return sqlite3_stricmp(left.c_str(), right.c_str()) < 0;
  }
};

void requireDifferent(const std::vector<AccessObject>& objects) {
  std::set<std::string, LessIgnoringCase> names;
  std::set<std::uint32_t> pages;
  for (const AccessObject& object : objects)
    if (!names.insert(object.name).second || (!object.isLinked && !pages.insert(object.definitionPage).second))
      throwDamaged("table " + object.name + " is listed twice, or another one with its definition");
}

} // namespace

std::vector<AccessObject> readCatalog(const AccessFile& file) {
  const AccessTable catalog = readTable(file, "MSysObjects", catalogPage);
  const CatalogRow row(catalog);
  std::vector<AccessObject> objects;
  const std::vector<std::uint32_t> pages = readDataPages(file, catalog);
  for (AccessScan scan(file, catalog, pages); scan.next();)
    if (std::optional<AccessObject> object = row.read(file, scan.record()))
      objects.push_back(std::move(*object));
  requireDifferent(objects);
  return objects;
}

} // namespace LagomareQuery
