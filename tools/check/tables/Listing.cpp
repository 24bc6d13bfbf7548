#include "tools/check/tables/Listing.h"

#include "tools/check/tables/RowReader.h"
#include "tools/project/QueryRefused.h"
#include "tools/system/Text.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace LagomareTools {

namespace {

constexpr const char* listingSql = "select m.name, p.name from sqlite_master as m join pragma_table_info(m.name) as p";

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool isSameName(std::string_view one, std::string_view other) {
  return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                    [](char a, char b) { return lower(a) == lower(b); });
}

bool isOfSystem(std::string_view table) {
  return isSameName(table.substr(0, 7), "sqlite_") || isSameName(table.substr(0, 4), "MSys");
}

/// Some executables answer every query with something.
bool holdsTableOfDialect(const Listing& listing) {
  for (const Dialect dialect : allDialects)
    for (const LegacyTable& table : schemaOf(dialect).tables)
      if (findTable(listing, table.name) != nullptr)
        return true;
  return false;
}

const LegacyTable* findDescription(const Schema& schema, std::string_view name) {
  const auto found = std::find_if(schema.tables.begin(), schema.tables.end(),
                                  [name](const LegacyTable& table) { return isSameName(table.name, name); });
  return found == schema.tables.end() ? nullptr : &*found;
}

/// Where the import uses only some columns of a row, months included: those tell what is meant, but are not looked at.
bool isReadByImport(const LegacyTable& table, const LegacyColumn& column) {
  switch (column.type) {
  case Type::unread:
  case Type::year:
  case Type::month:
    return false;
  case Type::date:
    return table.layout == Layout::settings;
  default:
    return true;
  }
}

std::vector<std::string> unreadColumns(const ListedTable& listed, const LegacyTable& table) {
  std::vector<std::string> unread;
  for (std::size_t at = 0; at < listed.columns.size(); ++at) {
    const auto isThis = [&](const LegacyColumn& column) { return isSameName(column.name, listed.columns[at]); };
    const auto byName = std::find_if(table.columns.begin(), table.columns.end(), isThis);
    const auto end = static_cast<std::ptrdiff_t>(std::min(at, table.columns.size()));
    const bool countsByName = !table.isReadWhole || (byName != table.columns.end() && byName->type == Type::code);
    const auto column = countsByName ? byName : std::next(table.columns.begin(), end);
    if (column == table.columns.end() || !isReadByImport(table, *column))
      unread.push_back(listed.columns[at]);
  }
  return unread;
}

} // namespace

std::size_t ListedTable::columnOf(std::string_view wanted) const {
  const auto found =
      std::find_if(columns.begin(), columns.end(), [wanted](const auto& column) { return isSameName(column, wanted); });
  return static_cast<std::size_t>(found - columns.begin());
}

std::optional<Listing> listTables(Lagomare::QuerySource& source) {
  Listing listing;
  try {
    RowReader rows(source, listingSql, false);
    while (rows.next()) {
      if (rows.fields().size() != 2)
        return std::nullopt;
      const std::string table = plainText(rows.fields().front());
      if (isOfSystem(table))
        continue;
      if (listing.empty() || listing.back().name != table)
        listing.push_back({table, {}});
      listing.back().columns.push_back(plainText(rows.fields().back()));
    }
  } catch (const QueryRefused&) {
    return std::nullopt;
  }
  return holdsTableOfDialect(listing) ? std::optional(listing) : std::nullopt;
}

const ListedTable* findTable(const Listing& listing, std::string_view name) {
  const auto found = std::find_if(listing.begin(), listing.end(),
                                  [name](const ListedTable& table) { return isSameName(table.name, name); });
  return found == listing.end() ? nullptr : &*found;
}

std::vector<NotRead> findNotRead(const Listing& listing, const Schema& schema) {
  std::vector<NotRead> notRead;
  for (const ListedTable& listed : listing) {
    const LegacyTable* const table = findDescription(schema, listed.name);
    if (table == nullptr)
      notRead.push_back({listed.name, std::nullopt});
    else if (auto columns = unreadColumns(listed, *table); !columns.empty())
      notRead.push_back({listed.name, std::move(columns)});
  }
  return notRead;
}

} // namespace LagomareTools
