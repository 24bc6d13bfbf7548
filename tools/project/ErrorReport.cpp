#include "tools/project/ErrorReport.h"

#include "access/FieldError.h"
#include "tools/project/LastQuery.h"
#include "tools/project/OddRow.h"
#include "tools/system/Text.h"

#include <array>
#include <cctype>
#include <new>

namespace LagomareTools {

namespace {

constexpr std::string_view otherKind = "Passed element"; ///< how the library's error begins

/// How to mend what the library throws, by the beginning of its text.
struct Advice {
  std::string_view beginning;
  const char* text;
};
constexpr std::array<Advice, 7> advices{
    {{"Date", "correct the project's start in this table"},
     {"SceneryProjectManager::loadInterval", "correct the project's start and duration in this table"},
     {"SceneryProjectManager::loadElements", "correct the project's duration, in years, in its general settings"},
     {"Scenario::addNode", "give every reservoir, demand and junction an id of its own"},
     {"Scenario::addLink", "give every link an id of its own"},
     {otherKind, "this table holds the id of an element of another kind; remove that row"},
     {"Invalid serie type", "this table holds the id of an element of another kind; remove that row"}}};

/// Without the name of the operation in front.
std::string forPeople(const std::string& what) {
  const std::size_t end = what.find(": ");
  return end != std::string::npos && what.find("::") < end ? what.substr(end + 2) : what;
}

std::string explained(const std::string& what) {
  for (const auto& advice : advices)
    if (what.compare(0, advice.beginning.size(), advice.beginning) == 0)
      return forPeople(what) + "; " + advice.text;
  return what;
}

std::string columnText(std::size_t column, const LastQuery& query) {
  return column < query.columns.size() ? "column " + query.columns[column]
                                       : "column number " + std::to_string(column + 1);
}

/// What stands there and what should.
std::string faultOf(const Lagomare::FieldError& field, const std::exception& error, const std::string& columnName) {
  const bool isWhole = std::string_view(error.what()) == "stoul";
  const bool isDate = columnName.find("Data") != std::string::npos;
  const std::string wanted = isDate ? "a date" : isWhole ? "a whole number from 0 to 4294967295" : "a number";
  if (!field.text())
    return "is missing from the row; the table needs the columns of this dialect, in their order";
  if (field.text()->empty())
    return "is empty where " + wanted + " must stand";
  const std::string found = "holds \"" + excerpt(*field.text()) + "\"";
  if (dynamic_cast<const std::out_of_range*>(&error) == nullptr)
    return found + " where " + wanted + " must stand";
  return found + ", which does not fit: " +
         (isWhole ? wanted + " must stand there"
                  : "a priority has 32 bits, one of a state no sign; other numbers have double precision");
}

/// The general settings have no id, although the channel takes their first column for one.
bool hasIds(const std::string& table) {
  return table != settingsTableOf(Dialect::of2010) && table != settingsTableOf(Dialect::of2013);
}

std::string rowText(const Lagomare::FieldError& field, const LastQuery& query) {
  const auto id = hasIds(query.table) ? field.rowId() : std::nullopt;
  const std::size_t number = field.text() ? findRow(id, field.column().value_or(0), *field.text()) : 0;
  const std::string row = number == 0 ? "a row" : "row " + std::to_string(number);
  return id ? row + " of the id " + std::to_string(*id) : row;
}

std::string describeField(const Lagomare::FieldError& field, const std::exception& error, const LastQuery& query) {
  const std::string column = columnText(field.column().value_or(0), query);
  return rowText(field, query) + ", " + column + ' ' + faultOf(field, error, column);
}

std::string hintForMissingPart(const ImportPlace& place) {
  const std::string other = nameOf(otherThan(place.dialect));
  return place.isDialectFound ? "; the project lacks what the " + std::string(nameOf(place.dialect)) + " dialect needs"
                              : "; the project may be of the other dialect: try --dialect " + other;
}

bool hasWord(const std::string& text, const std::string& word) {
  const auto isPart = [](char c) { return c == '_' || std::isalnum(static_cast<unsigned char>(c)) != 0; };
  for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1))
    if ((at == 0 || !isPart(text[at - 1])) && (at + word.size() == text.size() || !isPart(text[at + word.size()])))
      return true;
  return false;
}

/// Whether the reason is that the table, or a column of it, is not there.
bool isOfMissingPart(const std::string& refusal, const LastQuery& query) {
  return refusal.find("no such column") != std::string::npos || (!query.table.empty() && hasWord(refusal, query.table));
}

/// The answer's form is a frequent fault of an executable of one's own.
std::string hintForOwnExecutable(const ImportPlace& place) {
  return place.inputs.isOwnExecutable
             ? "; the query executable must write a blank inside a field as U+00A0, and one more "
               "field at the end of each line"
             : "";
}

/// The row that the library's error does not tell.
std::string oddRow(const std::string& what, const ImportPlace& place) {
  try {
    if (what.find(": invalid ") != std::string::npos)
      return findBrokenLink(place.dialect);
    return what.compare(0, otherKind.size(), otherKind) == 0 ? findReservoir(place.dialect) : "";
  } catch (const std::exception&) {
    return ""; // the first error counts
  }
}

std::string faultText(const std::exception& error, const LastQuery& query, const ImportPlace& place) {
  const std::string refusal = refusalOfLastQuery(place.inputs, place.plainDatabase);
  if (!refusal.empty())
    return "cannot be read: " + refusal + (isOfMissingPart(refusal, query) ? hintForMissingPart(place) : "");
  if (const auto* field = dynamic_cast<const Lagomare::FieldError*>(&error))
    return describeField(*field, error, query) + hintForOwnExecutable(place);
  const std::string what = error.what();
  const std::string row = oddRow(what, place);
  return row.empty() ? explained(what) : row;
}

/// Around a fault: its table before it, its query behind it.
std::string placed(const std::string& fault, const LastQuery& query) {
  if (query.sql.empty())
    return fault;
  const std::string sql = query.sql.substr(0, query.sql.find_last_not_of(' ') + 1);
  return "table " + query.table + ": " + fault + " (query: " + sql + ")";
}

} // namespace

std::string reportOf(const std::exception& error, const ImportPlace& place) {
  const LastQuery query = lastQuery();
  const bool isMemory = dynamic_cast<const std::bad_alloc*>(&error) != nullptr;
  const std::string fault = isMemory ? "there is not enough memory" : faultText(error, query, place);
  return place.inputs.projectName + ": " + placed(fault, query);
}

} // namespace LagomareTools
