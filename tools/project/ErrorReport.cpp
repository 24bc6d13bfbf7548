#include "tools/project/ErrorReport.h"

#include "access/FieldError.h"
#include "tools/project/AskedColumns.h"
#include "tools/project/QueryRefused.h"
#include "tools/system/Text.h"

#include <array>
#include <new>

namespace LagomareTools {

namespace {

constexpr const char* otherKind = "this table holds the id of an element of another kind; remove that row";

/// How to mend what the library throws, by what its text holds.
constexpr std::array<std::array<const char*, 2>, 8> remedies{
    {{"Date", "correct the project's start in this table"},
     {"loadInterval", "correct the project's start and duration in this table"},
     {"loadElements", "correct the project's duration, in years, in its general settings"},
     {"addNode", "give every reservoir, demand and junction an id of its own"},
     {"addLink", "give every link an id of its own"},
     {"loadGeneralInfo: invalid", "a link begins or ends at a node that the project lacks; correct the link"},
     {"Passed element", otherKind},
     {"Invalid serie type", otherKind}}};

std::string withRemedy(const std::string& what) {
  for (const auto& [part, remedy] : remedies)
    if (what.find(part) != std::string::npos)
      return what + "; " + remedy;
  return what;
}

std::string wantedIn(const std::string& column, bool isWhole) {
  if (column.find("Data") != std::string::npos)
    return "a date";
  return isWhole ? "a whole number from 0 to 4294967295" : "a number";
}

/// What is wrong with the field, and what must stand there.
std::string fieldFault(const Lagomare::FieldError& field, const std::exception& error, const std::string& column) {
  const std::string wanted = wantedIn(column, std::string_view(error.what()) == "stoul");
  if (!field.text())
    return "is missing; the table needs the columns of this dialect, in their order";
  if (field.text()->empty())
    return "is empty where " + wanted + " must stand";
  const bool isTooLarge = dynamic_cast<const std::out_of_range*>(&error) != nullptr;
  return "holds \"" + excerpt(*field.text()) + (isTooLarge ? "\", which does not fit: " : "\" where ") + wanted +
         " must stand" + (isTooLarge ? "; a priority has 32 bits, and no sign in a state" : "");
}

/// The general settings have no id, although the channel takes their first column for one.
bool hasIds(const std::string& table) {
  return table != settingsTableOf(Dialect::of2010) && table != settingsTableOf(Dialect::of2013);
}

std::string placeOf(const Lagomare::FieldError& field, const std::string& table) {
  const std::string row = field.row() ? "row " + std::to_string(*field.row()) : "a row";
  return field.rowId() && hasIds(table) ? row + " (id " + std::to_string(*field.rowId()) + ')' : row;
}

std::string describeField(const Lagomare::FieldError& field, const std::exception& error, const Project& project) {
  const std::string& sql = project.source()->lastSql();
  const std::string column = askedColumn(sql, field.column().value_or(0));
  return placeOf(field, askedTable(sql)) + ", column " + column + ' ' + fieldFault(field, error, column) +
         (project.isBundled()
              ? ""
              : "; the query executable must write a blank inside a field as U+00A0, and one more field "
                "at the end of each line");
}

std::string describeRefusal(const std::string& reason, const Project& project) {
  const std::string hint = std::string("; check that it is a project of the dialect ") + nameOf(project.dialect());
  return "cannot be read: " + reason + (project.isDialectFound() ? "" : hint);
}

std::string describe(const std::exception& error, const Project& project) {
  if (dynamic_cast<const std::bad_alloc*>(&error) != nullptr)
    return "there is not enough memory";
  if (dynamic_cast<const QueryRefused*>(&error) != nullptr)
    return describeRefusal(error.what(), project);
  if (const auto* const field = dynamic_cast<const Lagomare::FieldError*>(&error))
    return describeField(*field, error, project);
  return withRemedy(error.what());
}

} // namespace

std::string reportOf(const std::exception& error, const Project& project) {
  const std::string& sql = project.source()->lastSql();
  const std::string fault = describe(error, project);
  if (sql.empty())
    return project.name() + ": " + fault;
  return project.name() + ": table " + askedTable(sql) + ": " + fault +
         " (query: " + sql.substr(0, sql.find_last_not_of(' ') + 1) + ")";
}

} // namespace LagomareTools
