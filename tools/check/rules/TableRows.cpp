#include "tools/check/rules/TableRows.h"

#include "access/Numbers.h"
#include "tools/project/QueryRefused.h"
#include "tools/system/Text.h"

#include <algorithm>

namespace LagomareTools {

namespace {

std::string sqlNameOf(const LegacyTable& table, const LegacyColumn& column) {
  const std::string name = column.name;
  return table.layout == Layout::settings && column.type == Type::date ? "FORMAT(" + name + ", 'dd/mm/yyyy')" : name;
}

bool countsByPosition(const LegacyTable& table, const LegacyColumn& column) {
  return table.isReadWhole && column.type != Type::unread && column.type != Type::code;
}

/// The import asks for the ids of nodes and links by name before it reads their tables.
bool isFoundByName(const LegacyTable& table, const LegacyColumn& column) {
  const bool makesElements = table.layout == Layout::nodes || table.layout == Layout::links;
  return !table.isReadWhole || column.type == Type::code || (makesElements && column.type == Type::id);
}

/// Nothing where that is refused.
std::optional<std::size_t> countRows(Lagomare::QuerySource& source, const LegacyTable& table) {
  try {
    RowReader answer(source, std::string("select count(*) from ") + table.name, false);
    if (!answer.next() || answer.fields().empty())
      return std::nullopt;
    const auto count = Lagomare::findDouble(answer.fields().front());
    return count && count->value >= 0 ? std::optional(static_cast<std::size_t>(count->value)) : std::nullopt;
  } catch (const QueryRefused&) {
    return std::nullopt;
  }
}

} // namespace

bool tellsMonth(const LegacyTable& table, const LegacyColumn& column) {
  return table.layout != Layout::settings &&
         (column.type == Type::date || column.type == Type::year || column.type == Type::month);
}

void reportNotRead(Inspection& inspection, const LegacyTable& table, const std::string& reason) {
  const auto rows = countRows(inspection.source, table);
  if (!rows)
    return;
  inspection.counts.push_back({table.name, *rows, 0});
  Place place{table.name, 1};
  place.rows = *rows;
  if (*rows > 0)
    inspection.findings.add(Code::tableNotRead, place, [&reason] { return reason; });
}

TableRows::TableRows(Inspection& inspection, const LegacyTable& table)
    : inspection_(inspection), table_(table), places_(table.columns.size()) {
  if (findColumns())
    open();
}

/// The columns that the database has, if that is known. False where one is missing that the import needs.
bool TableRows::findColumns() {
  for (std::size_t column = 0; column < places_.size(); ++column)
    places_[column] = column;
  if (!inspection_.listing)
    return true;
  const ListedTable* const listed = findTable(*inspection_.listing, table_.name);
  if (listed == nullptr) {
    add(Code::tableMissing, place(), [this] { return std::string("there is no table ") + table_.name; });
    return false;
  }
  const bool areNamesFound = findColumnsByName(*listed);
  return areNamesFound && (!table_.isReadWhole || findColumnsByPosition(*listed));
}

bool TableRows::findColumnsByName(const ListedTable& listed) {
  bool areFound = true;
  for (std::size_t at = 0; at < table_.columns.size(); ++at) {
    const LegacyColumn& column = table_.columns[at];
    const std::size_t found = listed.columnOf(column.name);
    if (!isFoundByName(table_, column))
      continue;
    if (found < listed.columns.size()) {
      if (table_.isReadWhole && column.type == Type::code)
        places_[at] = found;
      continue;
    }
    places_[at].reset();
    if (tellsMonth(table_, column))
      continue;
    areFound = false;
    Place missing{table_.name};
    missing.column = column.name;
    add(Code::columnMissing, missing, [&column] { return std::string("there is no column ") + column.name; });
  }
  return areFound;
}

bool TableRows::findColumnsByPosition(const ListedTable& listed) {
  bool isFirstTheId = true;
  for (std::size_t at = 0; at < std::min(table_.columns.size(), listed.columns.size()); ++at) {
    const LegacyColumn& column = table_.columns[at];
    const std::string& found = listed.columns[at];
    if (!countsByPosition(table_, column) || listed.columnOf(column.name) == at)
      continue;
    const bool isId = isFoundByName(table_, column);
    isFirstTheId = isFirstTheId && !isId;
    Place renamed{table_.name};
    renamed.column = column.name;
    add(isId ? Code::idColumnMoved : Code::columnRenamed, renamed, [&] {
      return "column " + std::to_string(at + 1) + " is read as " + column.name + ", but its name is " + found;
    });
  }
  return isFirstTheId;
}

/// Asks with the columns that only tell what a row is meant to be, else, where the database is not listed, without
/// them.
void TableRows::open() {
  std::string refusal;
  if (!ask(true, refusal) && (inspection_.listing || table_.isReadWhole || !ask(false, refusal))) {
    refuse(refusal);
    return;
  }
  isRead_ = true;
  count_ = &inspection_.counts.emplace_back();
  count_->table = table_.name;
}

bool TableRows::ask(bool withMonths, std::string& refusal) {
  std::vector<std::size_t> wanted;
  for (const bool isForMonths : {false, true}) // last: a database's dates may hold blanks
    for (std::size_t at = 0; at < table_.columns.size(); ++at)
      if (tellsMonth(table_, table_.columns[at]) == isForMonths && places_[at] && (withMonths || !isForMonths))
        wanted.push_back(at);
  std::string list;
  for (const std::size_t at : wanted)
    list += (list.empty() ? "" : ", ") + sqlNameOf(table_, table_.columns[at]);
  const std::string sql = "select " + (table_.isReadWhole ? "*" : list) + " from " + table_.name;
  try {
    reader_.emplace(inspection_.source, sql, table_.flag);
    isFirstWaiting_ = reader_->next();
  } catch (const QueryRefused& reason) {
    reader_.reset();
    refusal = reason.what();
    return false;
  }
  if (!table_.isReadWhole) {
    std::fill(places_.begin(), places_.end(), std::nullopt);
    for (std::size_t field = 0; field < wanted.size(); ++field)
      places_[wanted[field]] = field;
  }
  return true;
}

void TableRows::refuse(const std::string& reason) {
  isRead_ = false;
  add(Code::queryRefused, Place{table_.name}, [&reason] { return oneLine(reason); });
}

bool TableRows::next() {
  if (!isRead_)
    return false;
  setOwner(std::nullopt, {});
  try {
    if (!isFirstWaiting_ && (reader_->number() == 0 || !reader_->next()))
      return false;
  } catch (const QueryRefused& reason) {
    refuse(reason.what());
    inspection_.counts.pop_back();
    return false;
  }
  isFirstWaiting_ = false;
  ++count_->rows;
  return true;
}

std::optional<std::string_view> TableRows::at(std::size_t column) const {
  const auto& fields = reader_->fields();
  const auto& field = places_[column];
  return field && *field < fields.size() ? std::optional(fields[*field]) : std::nullopt;
}

void TableRows::setOwner(std::optional<std::uint32_t> id, std::string_view name) {
  id_ = id;
  element_ = name;
}

Place TableRows::place() const {
  const auto row = reader_ && reader_->number() > 0 ? std::optional(reader_->number()) : std::nullopt;
  return {table_.name, row, id_, element_};
}

Place TableRows::place(std::size_t column) const {
  Place place = this->place();
  place.column = table_.columns[column].name;
  place.value = at(column);
  return place;
}

} // namespace LagomareTools
