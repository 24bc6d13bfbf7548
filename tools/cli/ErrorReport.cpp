#include "tools/cli/ErrorReport.h"

#include "access/FieldError.h"
#include "tools/cli/BrokenLink.h"
#include "tools/cli/LastQuery.h"

#include <array>
#include <new>

namespace LagomareCli {

namespace {

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
     {"Passed element", "this table holds the id of an element of another kind; remove that row"},
     {"Invalid serie type", "this table holds the id of an element of another kind; remove that row"}}};

std::string explained(const std::string& what) {
  for (const auto& advice : advices)
    if (what.compare(0, advice.beginning.size(), advice.beginning) == 0)
      return what + "; " + advice.text;
  return what;
}

std::string columnText(std::size_t column, const LastQuery& query) {
  return column < query.columns.size() ? "column " + query.columns[column]
                                       : "column number " + std::to_string(column + 1);
}

/// What stands there and what should.
std::string faultOf(const FieldError& field, const std::exception& error) {
  const bool isId = std::string_view(error.what()) == "stoul";
  const std::string wanted = isId ? "a whole number from 0 to 4294967295" : "a number";
  if (!field.text())
    return "is missing from the row; the table needs the columns of this dialect, in their order";
  if (field.text()->empty())
    return "is empty where " + wanted + " must stand";
  const std::string found = "holds \"" + *field.text() + "\"";
  if (dynamic_cast<const std::out_of_range*>(&error) == nullptr)
    return found + " where " + wanted + " must stand";
  return found + ", which does not fit: " +
         (isId ? wanted + " must stand there" : "a priority has 32 bits, other numbers have double precision");
}

std::string describeField(const FieldError& field, const std::exception& error, const LastQuery& query) {
  if (field.rowId() && field.column())
    return "row of the id " + std::to_string(*field.rowId()) + ", " + columnText(*field.column(), query) + ' ' +
           faultOf(field, error);
  const std::size_t row = field.text() ? rowOfId(*field.text()) : 0;
  return (row == 0 ? "a row" : "row " + std::to_string(row)) + ", " + columnText(0, query) + ' ' +
         faultOf(field, error);
}

std::string hintForMissingTable(const ImportPlace& place) {
  const std::string other = nameOf(otherThan(place.dialect));
  return place.isDialectFound ? "; the project lacks what the " + std::string(nameOf(place.dialect)) + " dialect needs"
                              : "; the project may be of the other dialect: try --dialect " + other;
}

bool isOfMissingTable(const std::string& refusal, const LastQuery& query) {
  return !query.table.empty() && refusal.find(query.table) != std::string::npos;
}

/// The answer's form is a frequent fault of an executable of one's own.
std::string hintForOwnExecutable(const ImportPlace& place) {
  return place.inputs.isOwnExecutable
             ? "; the query executable must write a blank inside a field as U+00A0, and one more "
               "field at the end of each line"
             : "";
}

std::string brokenLink(const ImportPlace& place) {
  try {
    return findBrokenLink(place.dialect);
  } catch (const std::exception&) {
    return ""; // the first error counts
  }
}

std::string faultText(const std::exception& error, const LastQuery& query, const ImportPlace& place) {
  const std::string refusal = refusalOfLastQuery(place.inputs, place.plainDatabase);
  if (!refusal.empty())
    return "cannot be read: " + refusal + (isOfMissingTable(refusal, query) ? hintForMissingTable(place) : "");
  if (const auto* field = dynamic_cast<const FieldError*>(&error))
    return describeField(*field, error, query) + hintForOwnExecutable(place);
  const std::string what = error.what();
  const std::string link = what.find(": invalid ") != std::string::npos ? brokenLink(place) : "";
  return link.empty() ? explained(what) : link;
}

} // namespace

std::string reportOf(const std::exception& error, const ImportPlace& place) {
  const std::string project = place.inputs.projectName + ": ";
  const LastQuery query = lastQuery();
  if (dynamic_cast<const std::bad_alloc*>(&error) != nullptr)
    return project + "there is not enough memory for what table " + query.table + " holds";
  if (query.sql.empty())
    return project + error.what();
  return project + "table " + query.table + ": " + faultText(error, query, place) + " (query: " + query.sql + ")";
}

} // namespace LagomareCli
