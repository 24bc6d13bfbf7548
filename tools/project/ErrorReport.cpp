#include "tools/project/ErrorReport.h"

#include "access/FieldError.h"
#include "tools/project/QueryRefused.h"
#include "tools/system/Text.h"

#include <array>
#include <new>

namespace LagomareTools {

namespace {

constexpr const char* otherKind = "this table holds the id of an element of another kind; remove that row";

/// How to mend what the library throws, by what its text holds.
constexpr std::array<std::array<const char*, 2>, 9> remedies{
    {{"number that fits", "correct it; a custom query executable writes a blank inside a field as U+00A0"},
     {"has no column", "the table needs the columns of this dialect, in their order"},
     {"Date", "correct the project's start"},
     {"loadInterval", "correct the project's start and duration"},
     {"loadElements", "correct the project's duration, in years, in its general settings"},
     {"already holds", "give every element an id of its own"},
     {"loadGeneralInfo: invalid", "a link begins or ends at a node that the project lacks; correct the link"},
     {"Passed element", otherKind},
     {"Invalid serie type", otherKind}}};

/// The general settings have no id, although the channel takes their first column for one.
bool hasIds(const std::string& sql) {
  return sql.find(settingsTableOf(Dialect::of2010)) == std::string::npos &&
         sql.find(settingsTableOf(Dialect::of2013)) == std::string::npos;
}

std::string faultOf(const Lagomare::FieldError& field, const std::string& what, const std::string& sql) {
  std::string fault = field.row() ? "row " + std::to_string(*field.row()) : "a row";
  if (field.rowId() && hasIds(sql))
    fault += " (id " + std::to_string(*field.rowId()) + ')';
  if (!field.text())
    return fault + ": " + what;
  return fault + ", column " + std::to_string(field.column().value_or(0) + 1) + " holds \"" + excerpt(*field.text()) +
         "\", which is no " + (what == "stoul" ? "whole " : "") + "number that fits";
}

std::string describe(const std::exception& error, const Project& project) {
  if (dynamic_cast<const std::bad_alloc*>(&error) != nullptr)
    return "there is not enough memory";
  std::string text = error.what();
  if (dynamic_cast<const QueryRefused*>(&error) != nullptr)
    return "cannot be read: " + text +
           (project.isDialectFound() ? "" : "; check that it is a project of the dialect ") +
           (project.isDialectFound() ? "" : nameOf(project.dialect()));
  if (const auto* const field = dynamic_cast<const Lagomare::FieldError*>(&error))
    text = faultOf(*field, text, project.source()->lastSql());
  for (const auto& [part, remedy] : remedies)
    if (text.find(part) != std::string::npos)
      return text + "; " + remedy;
  return text;
}

} // namespace

std::string reportOf(const std::exception& error, const Project& project) {
  const std::string& sql = project.source()->lastSql();
  const std::string fault = project.name() + ": " + describe(error, project);
  return sql.empty() ? fault : fault + " (query: " + sql.substr(0, sql.find_last_not_of(' ') + 1) + ')';
}

} // namespace LagomareTools
